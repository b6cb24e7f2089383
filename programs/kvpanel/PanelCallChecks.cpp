// SPDX-License-Identifier: Apache-2.0
// The checks of the calls of PDEPanel.
#include "PanelChecks.h"
#include "PanelTrial.h"
#include "SummaryCheck.h"

#include <host/printer/PpdFile.h>
#include <protocol/PDEPanelHelp.h>

#include <QCoreApplication>

namespace panel_checks {

namespace {

/// Lets the panel save twice and compares the choices: the dialog reads them after each input, and a job
/// must contain what the dialog has shown.
void saveTwice(PanelTrial &trial)
{
    const std::optional<PDEChoices> first = trial.save();
    const std::optional<PDEChoices> second = trial.save();
    if (first && second && first != second)
        trial.report(QStringLiteral("the same choices each time it saves"),
                     QStringLiteral("it saves %1, then %2").arg(choicesText(*first), choicesText(*second)));
}

/// Delivers the events that a change of size or paper has posted.
void deliverEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace

void checkName(PanelTrial &trial)
{
    QString name = QStringLiteral("-");
    trial.call(asks, [&] { name = trial.panel().panelName(); });
    if (name.trimmed().isEmpty())
        trial.report(QStringLiteral("a title for the dialog"), QStringLiteral("it is empty"));
}

void checkKind(PanelTrial &trial)
{
    QString kind = QStringLiteral("-");
    trial.call(asks, [&] { kind = trial.panel().panelKind(); });
    if (kind.trimmed().isEmpty())
        trial.report(QStringLiteral("a name for the kind of panel"), QStringLiteral("it is empty"));
}

void checkView(PanelTrial &trial)
{
    QWidget *view = nullptr;
    QWidget *again = nullptr;
    if (!trial.call(notifiesQuietly, [&] { view = trial.panel().panelView(); }))
        return;
    if (!view) {
        trial.report(QStringLiteral("a view"), QStringLiteral("it returns null"));
        return;
    }
    if (view->parentWidget())
        trial.report(QStringLiteral("a view without a parent, which the dialog places"),
                     QStringLiteral("its parent is a %1")
                         .arg(QString::fromLatin1(view->parentWidget()->metaObject()->className())));
    trial.placeView(view);
    trial.call(notifiesQuietly, [&] { again = trial.panel().panelView(); });
    if (trial.view() && again != view)
        trial.report(QStringLiteral("the same view at each call"), QStringLiteral("it returns another one"));
}

void checkKeywords(PanelTrial &trial)
{
    std::optional<QStringList> keywords;
    if (!trial.call(saves, [&] { keywords = trial.panel().supportedPPDOptionKeys(); }))
        return;
    trial.setHandled(keywords.value_or(QStringList()));
    if (keywords && keywords->removeDuplicates() > 0)
        trial.report(QStringLiteral("each keyword once"), QStringLiteral("one is listed again"));
    for (const QString &keyword : trial.handled()) {
        if (!trial.metadataKeywords().contains(keyword))
            trial.report(QStringLiteral("keywords of the metadata's \"Keywords\""),
                         QStringLiteral("they do not contain \"%1\"").arg(keyword));
        if (!trial.dialog().ppd().hasOption(keyword))
            trial.report(QStringLiteral("options of the PPD"),
                         QStringLiteral("it does not have \"%1\"").arg(keyword));
    }
}

void checkRestoring(PanelTrial &trial)
{
    trial.restore();
    // A dialog that does not show the reason passes null.
    trial.call(notifies, [&] { trial.panel().restoreValuesAndReturnError(nullptr); });
}

void checkShowing(PanelTrial &trial)
{
    for (int time = 0; time < 2; ++time)
        trial.call(notifies, [&] { trial.panel().willShow(); });
}

void checkSaving(PanelTrial &trial)
{
    saveTwice(trial);
    trial.call(saves, [&] { trial.panel().saveValuesAndReturnError(nullptr); });
}

void checkPrinting(PanelTrial &trial)
{
    bool first = false;
    bool second = false;
    trial.call(saves, [&] { first = trial.panel().shouldPrint(); });
    trial.call(saves, [&] { second = trial.panel().shouldPrint(); });
    if (first != second)
        trial.report(QStringLiteral("the same result each time"), QStringLiteral("the result changes"));
}

void checkSummary(PanelTrial &trial)
{
    std::optional<QVariantMap> summary;
    trial.call(asks, [&] { summary = trial.panel().summaryInfo(); });
    if (summary)
        checkSummaryEntries(trial, *summary);
}

void checkOutsideChanges(PanelTrial &trial)
{
    const auto notify = [&trial](const std::optional<QString> &keyword,
                                 const std::optional<QString> &choice) {
        trial.call(notifies, [&] { trial.panel().PPDOptionKeyValueDidChange(keyword, choice); });
    };
    for (const QString &keyword : trial.handled()) {
        const std::optional<QString> before = trial.dialog().ppd().markedChoice(keyword);
        for (const QString &choice : trial.choicesOf(keyword)) {
            trial.mark(keyword, choice);
            notify(keyword, choice);
        }
        notify(keyword, std::nullopt);
        if (before) {
            trial.mark(keyword, *before);
            notify(keyword, before);
        }
    }
    notify(std::nullopt, std::nullopt);
    notify(QStringLiteral("KvNoSuchOption"), QStringLiteral("ON"));
    trial.restore();
}

void checkHelp(PanelTrial &trial)
{
    bool isOffered = false;
    trial.call(asks, [&] { isOffered = trial.panel().shouldShowHelp(); });
    if (!isOffered)
        return;
    const auto *const help = dynamic_cast<const PDEPanelHelp_v1 *>(&trial.panel());
    if (!help) {
        trial.report(QStringLiteral("false for a panel without PDEPanelHelp_v1"),
                     QStringLiteral("it returns true"));
        return;
    }
    QString text = QStringLiteral("-");
    trial.call(asks, [&] { text = help->helpText(); });
    if (text.trimmed().isEmpty())
        trial.report(QStringLiteral("a text from helpText()"), QStringLiteral("it is empty"));
}

void checkResizing(PanelTrial &trial)
{
    const QSize before = trial.view()->size();
    for (const QSize &size : {QSize(1200, 900), QSize(1, 1), before}) {
        trial.call(notifies, [&] {
            trial.view()->resize(size);
            deliverEvents();
        });
        if (!trial.view())
            return;
    }
}

void checkPapers(PanelTrial &trial)
{
    host::PpdFile &ppd = trial.dialog().ppd();
    const QString keyword = QString::fromLatin1(host::paperKeyword);
    const auto change = [&](const std::optional<platform::Paper> &paper) {
        if (paper)
            ppd.mark(keyword, paper->name.value_or(QString()));
        trial.dialog().setPaper(paper);
        trial.call(notifies, [&] {
            trial.dialog().postPaperDidChange();
            deliverEvents();
        });
        trial.call(notifies, [&] { trial.panel().willShow(); });
        saveTwice(trial);
    };
    const std::optional<platform::Paper> before = trial.dialog().paper();
    for (const host::PpdPaper &paper : ppd.papers())
        change(platform::Paper{.name = QString::fromUtf8(paper.name), .height = paper.size.height()});
    change(std::nullopt);
    change(before);
}

void checkClosing(PanelTrial &trial)
{
    trial.call(notifies, [&] { trial.panel().printWindowWillClose(&trial.window()); });
}

} // namespace panel_checks
