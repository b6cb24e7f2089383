// SPDX-License-Identifier: Apache-2.0
#include "SummaryCheck.h"

#include "PanelTrial.h"

void checkSummaryEntries(PanelTrial &trial, const QVariantMap &summary)
{
    if (!summary.contains(PDESummaryDisplayOrderKey)) {
        trial.report(QStringLiteral("the entry \"%1\"").arg(PDESummaryDisplayOrderKey),
                     QStringLiteral("the summary does not have it"));
        return;
    }
    const QStringList order = summary.value(PDESummaryDisplayOrderKey).toStringList();
    for (const QString &title : order) {
        if (!summary.contains(title))
            trial.report(QStringLiteral("an entry for each title of the display order"),
                         QStringLiteral("there is none for \"%1\"").arg(title));
    }
    for (auto entry = summary.begin(); entry != summary.end(); ++entry) {
        if (entry.key() == PDESummaryDisplayOrderKey)
            continue;
        if (order.count(entry.key()) != 1)
            trial.report(
                QStringLiteral("each title once in the display order"),
                QStringLiteral("\"%1\" is there %2 times").arg(entry.key()).arg(order.count(entry.key())));
        if (!entry.value().canConvert<QString>())
            trial.report(QStringLiteral("texts as values"),
                         QStringLiteral("the value of \"%1\" is none").arg(entry.key()));
    }
}
