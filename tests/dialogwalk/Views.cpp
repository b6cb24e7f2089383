// SPDX-License-Identifier: Apache-2.0
#include "Views.h"

#include "RollControls.h"
#include "ShownPlan.h"

#include <dialog/widgets/FittedLabel.h>
#include <dialog/window/StripPreview.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeWidget>

#include <set>

namespace dialogwalk {

namespace {

/// Collects the differences.
class Agreement {
public:
    void hold(const QString &place, const QString &shown, const QString &sent)
    {
        if (shown != sent)
            m_lines.append(QStringLiteral("%1 shows \"%2\", sent is \"%3\"").arg(place, shown, sent));
    }
    void add(const QStringList &lines) { m_lines += lines; }
    const QStringList &lines() const { return m_lines; }

private:
    QStringList m_lines;
};

const dialog::StripPreview &stripOf(const WalkedDialog &dialog)
{
    return *dialog.window().findChild<dialog::StripPreview *>();
}

QString wordsBelowStrip(const WalkedDialog &dialog)
{
    const auto labels = dialog.window().findChildren<dialog::FittedLabel *>(Qt::FindDirectChildrenOnly);
    return labels.size() == 1 ? labels.first()->text() : QString();
}

bool arePagesValid(const WalkedDialog &dialog)
{
    return !wordsBelowStrip(dialog).startsWith(QStringLiteral("Cannot ")) &&
           !wordsBelowStrip(dialog).startsWith(QStringLiteral("Invalid page range")) &&
           !wordsBelowStrip(dialog).startsWith(QStringLiteral("Nothing to print"));
}

void compareStrip(const WalkedDialog &dialog, const ExpectedStrip &expected, Agreement &agreement)
{
    const std::optional<ExpectedStrip> shown = shownStrip(dialog);
    if (!shown) {
        agreement.add({QStringLiteral("there is no strip; sent is ") + expected.text()});
        return;
    }
    const QStringList parted = differences(*shown, expected);
    if (!parted.isEmpty())
        agreement.add(QStringList{QStringLiteral("the strip shows another job than is sent:")} + parted);
    agreement.add(compareFigures(QStringLiteral("the spoken strip"), stripOf(dialog).accessibleDescription(),
                                 expected));
    agreement.hold(QStringLiteral("the line below the strip"), wordsBelowStrip(dialog).replace(u'\n', u' '),
                   stripOf(dialog).accessibleDescription());
}

QString lineOf(const std::vector<dialog::SummarySection> &sections, const QString &section,
               const QString &title)
{
    for (const dialog::SummarySection &each : sections) {
        for (const auto &[name, value] : each.lines) {
            if (each.title == section && name == title)
                return value;
        }
    }
    return QStringLiteral("(none)");
}

/// The panel's lines in their order: the count first, and automatic cutting by itself only without it.
QStringList expectedPanelLines(const WalkedDialog &dialog, const OptionTexts &options)
{
    const QStringList keywords = dialog.printer().cutKeywords;
    const QByteArray paper = options.value("PageSize");
    const bool hasFixedLength = paper.startsWith("DC") || paper.startsWith("AV") || paper.startsWith("FL");
    const auto yesOrNo = [&](const char *keyword) {
        return options.value(keyword) == "ON" ? QStringLiteral("Yes") : QStringLiteral("No");
    };
    QStringList lines;
    for (const char *keyword : {"KvCutLabel", "KvAutoTapeCut", "KvCutAtEnd", "KvHalfCut", "KvSpecialTape",
                                "KvChainPrint", "KvMirror", "KvRemoveBlkSpace", "KvCutMark"}) {
        const QByteArray name(keyword);
        if (!keywords.contains(QLatin1String(keyword)) || (name == "KvRemoveBlkSpace" && hasFixedLength))
            continue;
        if (name == "KvCutLabel")
            lines.append(options.value("KvAutoTapeCut") == "ON" ? QString::fromLatin1(options.value(name))
                                                                : QStringLiteral("No"));
        else if (name != "KvAutoTapeCut" || !keywords.contains(QStringLiteral("KvCutLabel")))
            lines.append(yesOrNo(keyword));
    }
    return lines + RollControls::summaryWords(dialog.server().ppd(dialog.destination()), options);
}

QStringList panelLines(const std::vector<dialog::SummarySection> &sections)
{
    QStringList lines;
    for (const dialog::SummarySection &section : sections) {
        if (section.title == QStringLiteral("Printing") || section.title == QStringLiteral("Label strip"))
            continue;
        for (const auto &[title, value] : section.lines)
            lines.append(value.section(u' ', 0, 0));
    }
    return lines;
}

/// The page of the summary, when it is in front.
void compareSummaryPage(const WalkedDialog &dialog, Agreement &agreement)
{
    const auto *const page = dialog.window().findChild<dialog::SummaryPage *>();
    if (!page || !page->isVisible())
        return;
    QStringList shown;
    for (int head = 0; head < page->topLevelItemCount(); ++head) {
        const QTreeWidgetItem *const item = page->topLevelItem(head);
        shown.append(item->text(0));
        for (int line = 0; line < item->childCount(); ++line)
            shown.append(item->child(line)->text(0) + u'=' + item->child(line)->text(1));
    }
    QStringList made;
    for (const dialog::SummarySection &section : dialog.window().summary()) {
        made.append(section.title);
        for (const auto &[title, value] : section.lines)
            made.append(title + u'=' + value);
    }
    agreement.hold(QStringLiteral("the summary page"), shown.join(u'|'), made.join(u'|'));
}

void compareSummary(const WalkedDialog &dialog, const ExpectedStrip *strip, const OptionTexts &options,
                    Agreement &agreement)
{
    const std::vector<dialog::SummarySection> sections = dialog.window().summary();
    const QString printing = QStringLiteral("Printing");
    agreement.hold(QStringLiteral("the summary's copies"),
                   lineOf(sections, printing, QStringLiteral("Copies")),
                   QString::fromLatin1(options.value("copies", "1")));
    agreement.hold(QStringLiteral("the summary's panel"), panelLines(sections).join(u'|'),
                   expectedPanelLines(dialog, options).join(u'|'));
    compareSummaryPage(dialog, agreement);
    if (!strip)
        return;
    agreement.hold(QStringLiteral("the summary's cuts"),
                   lineOf(sections, QStringLiteral("Label strip"), QStringLiteral("Cuts")),
                   strip->sentences.join(u' '));
    agreement.hold(QStringLiteral("the summary's labels"),
                   lineOf(sections, QStringLiteral("Label strip"), QStringLiteral("Labels")),
                   QString::number(strip->labels.size()));
    agreement.hold(QStringLiteral("the summary's pieces"),
                   lineOf(sections, QStringLiteral("Label strip"), QStringLiteral("Pieces")),
                   strip->areCutsKnown ? QString::number(strip->pieces()) : QStringLiteral("(none)"));
    agreement.hold(QStringLiteral("the summary's tape"),
                   lineOf(sections, QStringLiteral("Label strip"), QStringLiteral("Tape")),
                   stripOf(dialog)
                       .accessibleDescription()
                       .section(QStringLiteral("Tape: "), 1)
                       .section(QRegularExpression(QStringLiteral("(?<= m| mm|\u2026) ")), 0, 0));
}

QString joined(const OptionTexts &texts)
{
    QStringList lines;
    for (auto each = texts.begin(); each != texts.end(); ++each)
        lines.append(QString::fromUtf8(each.key() + '=' + each.value()));
    return lines.join(u' ');
}

/// The options that lp would send with the command line.
OptionTexts optionsOfCommand(const QString &line)
{
    OptionTexts texts;
    const QStringList words = line.split(u' ');
    const QMap<QString, QByteArray> letters = {{QStringLiteral("-n"), "copies"},
                                               {QStringLiteral("-q"), "job-priority"},
                                               {QStringLiteral("-H"), "job-hold-until"},
                                               {QStringLiteral("-P"), "page-ranges"}};
    for (qsizetype i = 0; i + 1 < words.size() && words[i] != QStringLiteral("--"); ++i) {
        QString word = words[i + 1];
        word.remove(u'\'').remove(u'\\');
        if (words[i] == QStringLiteral("-o"))
            texts[word.section(u'=', 0, 0).toUtf8()] = word.section(u'=', 1).toUtf8();
        else if (letters.contains(words[i]))
            texts[letters[words[i]]] = word.toUtf8();
    }
    return texts;
}

/// The page of what will be sent, when it is in front.
void compareSentPage(const WalkedDialog &dialog, Agreement &agreement)
{
    QTreeWidget *list = nullptr;
    for (QTreeWidget *const each : dialog.window().findChildren<QTreeWidget *>()) {
        if (each->accessibleName() == QStringLiteral("Options of the job") && each->isVisible())
            list = each;
    }
    if (!list)
        return;
    OptionTexts all;
    OptionTexts sent;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *const item = list->topLevelItem(row);
        all[item->text(0).toUtf8()] = item->text(1).toUtf8();
        if (item->text(3) == QStringLiteral("yes"))
            sent[item->text(0).toUtf8()] = item->text(1).toUtf8();
    }
    agreement.hold(QStringLiteral("the page of what will be sent"), joined(all), joined(dialog.options()));
    agreement.hold(QStringLiteral("the column \"Sent\""), joined(sent), joined(dialog.sentOptions()));
    const QLineEdit *const line = list->parentWidget()->findChild<QLineEdit *>();
    agreement.hold(QStringLiteral("the command"), joined(optionsOfCommand(line->text())),
                   joined(dialog.sentOptions()));
}

/// What the boxes on the panel say, and what the panel itself would save.
void comparePanel(const WalkedDialog &dialog, const OptionTexts &options, Agreement &agreement)
{
    const host::PanelSettings settings = dialog.setup().panelSettings();
    if (!(settings == dialog.window().ticket()->panel))
        agreement.add({QStringLiteral("the panel would save something else than the ticket has")});
    for (const auto &[keyword, choice] : settings.choices)
        agreement.hold(QStringLiteral("the panel for ") + keyword, choice,
                       QString::fromUtf8(options.value(keyword.toUtf8())));
    const PanelBoxes panel = dialog.panel();
    const QStringList keywords = dialog.printer().cutKeywords;
    if (panel.isShown() == keywords.isEmpty())
        agreement.add({QStringLiteral("the printer's cut options and its panel do not go together")});
    const OptionTexts boxes = panel.isShown() ? panel.saved() : OptionTexts();
    for (const QString &keyword : keywords) {
        if (panel.isShown())
            agreement.hold(QStringLiteral("the box of ") + keyword,
                           QString::fromLatin1(boxes.value(keyword.toLatin1(), "(none)")),
                           QString::fromLatin1(options.value(keyword.toLatin1())));
    }
}

/// The pairs of choices that the description excludes and the job has, as "A a B b".
std::set<QString> brokenConstraints(const QByteArray &ppd, const OptionTexts &options)
{
    static const QRegularExpression form(
        QStringLiteral(
            "^\\*(?:UIConstraints:|cupsUIConstraints \\w+:) *\"?\\*(\\w+) (\\S+) \\*(\\w+) ([^\\s\"]+)"),
        QRegularExpression::MultilineOption);
    std::set<QString> broken;
    for (auto each = form.globalMatch(QString::fromLatin1(ppd)); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        QString sides[2];
        bool holds = true;
        for (int side = 0; side < 2; ++side) {
            const QString keyword = match.captured(2 * side + 1);
            const QString choice = match.captured(2 * side + 2);
            sides[side] = keyword + u' ' + choice;
            holds = holds && QString::fromLatin1(options.value(keyword.toLatin1())) == choice;
        }
        if (holds)
            broken.insert(std::min(sides[0], sides[1]) + u' ' + std::max(sides[0], sides[1]));
    }
    return broken;
}

void compareConflicts(const WalkedDialog &dialog, const OptionTexts &options, Agreement &agreement)
{
    QStringList broken;
    for (const QString &each : brokenConstraints(dialog.server().ppd(dialog.destination()), options))
        broken.append(each);
    const auto shown = dialog.told().count(QStringLiteral(" conflict."));
    if (shown != broken.size())
        agreement.add({QStringLiteral("the banners tell %1 conflicts: %2").arg(shown).arg(dialog.told()),
                       QStringLiteral("the job has %1: %2").arg(broken.size()).arg(broken.join(u'|'))});
}

} // namespace

std::optional<ExpectedStrip> shownStrip(const WalkedDialog &dialog)
{
    const dialog::StripPreview &preview = stripOf(dialog);
    const host::CutPlan *const plan = preview.plan();
    if (!plan || preview.isHidden())
        return std::nullopt;
    return stripOf(*plan, preview.accessibleDescription());
}

QStringList disagreements(const WalkedDialog &dialog)
{
    Agreement agreement;
    if (!dialog.window().ticket())
        return {QStringLiteral("there is no ticket")};
    const OptionTexts options = dialog.options();
    comparePanel(dialog, options, agreement);
    compareConflicts(dialog, options, agreement);
    if (!arePagesValid(dialog)) {
        if (stripOf(dialog).plan() && !stripOf(dialog).accessibleDescription().isEmpty())
            agreement.add({QStringLiteral("a strip is shown although the pages cannot be printed")});
        return agreement.lines();
    }
    const auto strip = expectedStrip(options, dialog.printer(), dialog.server().pages());
    if (strip)
        compareStrip(dialog, *strip, agreement);
    else if (shownStrip(dialog))
        agreement.add({QStringLiteral("a strip is shown of a paper that is not known")});
    compareSummary(dialog, strip ? &*strip : nullptr, options, agreement);
    compareSentPage(dialog, agreement);
    return agreement.lines();
}

} // namespace dialogwalk
