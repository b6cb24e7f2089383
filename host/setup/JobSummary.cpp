// SPDX-License-Identifier: Apache-2.0
#include "JobSummary.h"

#include <host/CutPlanWords.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::JobSummary)
};

QString number(std::size_t value)
{
    return QLocale().toString(static_cast<qulonglong>(value));
}

SummarySection printingSection(const PrinterSetup &setup, const LabelDocument &document,
                               const JobDraft &draft)
{
    SummarySection section{Text::tr("Printing"), {}};
    section.lines.emplace_back(Text::tr("Document"), document.title());
    section.lines.emplace_back(Text::tr("Printer"), setup.printerText());
    if (setup.paper())
        section.lines.emplace_back(Text::tr("Paper"), setup.paper()->text);
    const JobSettings settings = withDefaults(draft.settings, defaultPageSettings(setup.destination()));
    const QString ranges = settings.pageRanges.value_or(QString()).simplified();
    section.lines.emplace_back(Text::tr("Pages"), ranges.isEmpty() ? Text::tr("all") : ranges);
    if (settings.pageSet.value_or(PageSet::All) != PageSet::All)
        section.lines.emplace_back(Text::tr("Of these"), settings.pageSet == PageSet::Odd
                                                             ? Text::tr("the odd pages")
                                                             : Text::tr("the even pages"));
    section.lines.emplace_back(Text::tr("Copies"), QLocale().toString(draft.pages.copies));
    if (draft.pages.order == PageOrder::LastFirst)
        section.lines.emplace_back(Text::tr("Order"), Text::tr("last page first"));
    return section;
}

SummarySection panelSection(PDEPanel &panel)
{
    SummarySection section{panel.panelName(), {}};
    const QVariantMap info = panel.summaryInfo().value_or(QVariantMap());
    for (const QString &title : info.value(PDESummaryDisplayOrderKey).toStringList()) {
        // A line that the PPD gives no name says nothing to anybody.
        if (!title.isEmpty())
            section.lines.emplace_back(title, info.value(title).toString());
    }
    return section;
}

SummarySection stripSection(const CutPlan &plan)
{
    SummarySection section{Text::tr("Label strip"), {}};
    section.lines.emplace_back(Text::tr("Labels"), number(plan.labels().size()));
    section.lines.emplace_back(Text::tr("Pieces"), number(plan.pieces().size()));
    section.lines.emplace_back(Text::tr("Tape"), lengthInWords(plan.tapeUsed()));
    section.lines.emplace_back(Text::tr("Cuts"), cutPlanSentences(plan).join(u' '));
    return section;
}

} // namespace

std::vector<SummarySection> summarize(const PrinterSetup &setup, const LabelDocument &document,
                                      const JobDraft &draft, const PrintJob *strip)
{
    std::vector<SummarySection> sections{printingSection(setup, document, draft)};
    if (PDEPanel *const panel = setup.panel())
        sections.push_back(panelSection(*panel));
    if (strip)
        sections.push_back(stripSection(strip->plan()));
    return sections;
}

QString summaryInPlainText(const std::vector<SummarySection> &sections)
{
    QString text;
    for (const SummarySection &section : sections) {
        text += section.title + u'\n';
        for (const auto &[title, value] : section.lines)
            text += QStringLiteral("  %1: %2\n").arg(title, value);
    }
    return text;
}

QJsonArray summaryJson(const std::vector<SummarySection> &sections)
{
    QJsonArray list;
    for (const SummarySection &section : sections) {
        QJsonArray lines;
        for (const auto &[title, value] : section.lines)
            lines.append(QJsonObject{{QStringLiteral("title"), title}, {QStringLiteral("value"), value}});
        list.append(QJsonObject{{QStringLiteral("title"), section.title}, {QStringLiteral("lines"), lines}});
    }
    return list;
}

} // namespace host
