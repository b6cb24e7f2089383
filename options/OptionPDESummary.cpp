// SPDX-License-Identifier: Apache-2.0
// The panel's lines in the dialog's summary.
#include "OptionPDE.h"

#include <ppd/TapeInfo.h>

std::optional<QVariantMap> OptionPDE13_v400_::summaryInfo()
{
    // Cuts come first, in the order in which the strip meets them.
    static constexpr std::array<OptionKind, OptionCount> displayOrder = {
        OptionKind::CutLabel, OptionKind::AutoCut,        OptionKind::CutAtEnd,
        OptionKind::HalfCut,  OptionKind::SpecialTape,    OptionKind::ChainPrint,
        OptionKind::Mirror,   OptionKind::RemoveBlkSpace, OptionKind::CutMark,
    };
    QVariantMap summary;
    QStringList titles;
    for (const OptionKind kind : displayOrder) {
        if (!isInSummary(kind))
            continue;
        const OptionRow &row = OptionPDE13_v400_::row(kind);
        const QString title = titleFor(row.keyword, row.summaryKey);
        titles.append(title);
        summary.insert(title, summaryValue(kind));
    }
    // Every title stands in the order, one without a text too: the dialog counts the lines by it.
    summary.insert(PDESummaryDisplayOrderKey, titles);
    return summary;
}

bool OptionPDE13_v400_::isInSummary(OptionKind kind) const
{
    if (!selection(kind))
        return false;
    // The cut-every line tells the automatic cut too.
    if (kind == OptionKind::AutoCut)
        return !mCutEvery_Selection;
    if (kind == OptionKind::RemoveBlkSpace)
        return getTapeState() == TapeKindPlain || getTapeState() == TapeKindUnlisted;
    return true;
}

QString OptionPDE13_v400_::summaryValue(OptionKind kind) const
{
    // Whether labels are cut every so often at all is the automatic cut's mark.
    const OptionRow &marked = row(kind == OptionKind::CutLabel ? OptionKind::AutoCut : kind);
    const PDEChoice &held = *selection(kind);
    switch (indexOfMarkedOption((this->*marked.choices).get(), QLatin1String(marked.keyword))) {
    case 0:
        return localized(QStringLiteral("RS_STitle_No"));
    case 1:
        if (kind == OptionKind::CutLabel)
            return held.ppdTitle().value_or(QString()) + u' ' + localized(QStringLiteral("RS_Labels"));
        return localized(QStringLiteral("RS_STitle_Yes"));
    default:
        return held.userTitle().value_or(QString());
    }
}
