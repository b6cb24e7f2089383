// SPDX-License-Identifier: Apache-2.0
#include "JobSummary.h"

#include <host/strip/CutPlanText.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>

namespace host {
inline namespace setup {

namespace {

struct JobSummaryText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::JobSummary)
};

QString number(std::size_t value)
{
    return QLocale().toString(static_cast<qulonglong>(value));
}

SummarySection printingSection(const Ticket &ticket)
{
    SummarySection section{JobSummaryText::tr("Printing"), {}};
    section.lines.emplace_back(JobSummaryText::tr("Document"), ticket.document);
    section.lines.emplace_back(JobSummaryText::tr("Printer"), ticket.printer);
    if (ticket.paper)
        section.lines.emplace_back(JobSummaryText::tr("Paper"), ticket.paper->text);
    const QString ranges = ticket.settings.pageRanges.value_or(QString()).simplified();
    section.lines.emplace_back(JobSummaryText::tr("Pages"),
                               ranges.isEmpty() ? JobSummaryText::tr("all") : ranges);
    const PageSet set = ticket.settings.pageSet.value_or(PageSet::All);
    if (set != PageSet::All)
        section.lines.emplace_back(JobSummaryText::tr("Page set"), set == PageSet::Odd
                                                                       ? JobSummaryText::tr("odd pages")
                                                                       : JobSummaryText::tr("even pages"));
    section.lines.emplace_back(JobSummaryText::tr("Copies"), QLocale().toString(ticket.pages.copies));
    if (ticket.pages.order == PageOrder::Reverse)
        section.lines.emplace_back(JobSummaryText::tr("Order"), JobSummaryText::tr("reverse"));
    return section;
}

SummarySection panelSection(const QString &title, const QVariantMap &info)
{
    SummarySection section{title, {}};
    for (const QString &line : info.value(PDESummaryDisplayOrderKey).toStringList()) {
        // A line without a name in the PPD would have no meaning.
        if (!line.isEmpty())
            section.lines.emplace_back(line, info.value(line).toString());
    }
    return section;
}

SummarySection stripSection(const CutPlan &plan)
{
    SummarySection section{JobSummaryText::tr("Label strip"), {}};
    section.lines.emplace_back(JobSummaryText::tr("Labels"), number(plan.labels().size()));
    if (plan.areCutsKnown())
        section.lines.emplace_back(JobSummaryText::tr("Pieces"), number(plan.pieces().size()));
    section.lines.emplace_back(JobSummaryText::tr("Tape"), tapeText(plan));
    section.lines.emplace_back(JobSummaryText::tr("Cuts"), cutPlanDescription(plan).join(u' '));
    return section;
}

} // namespace

std::vector<SummarySection> summarize(const Ticket &ticket, const PrinterSetup &setup, const CutPlan *plan)
{
    std::vector<SummarySection> sections{printingSection(ticket)};
    for (const PanelSummary &summary : setup.panelSummaries(ticket.panel.choices))
        sections.push_back(panelSection(summary.title, summary.lines));
    if (plan)
        sections.push_back(stripSection(*plan));
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

} // namespace setup
} // namespace host
