// SPDX-License-Identifier: Apache-2.0
#include "PrintJob.h"

#include "CutPlanWords.h"
#include "Units.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace host {

namespace {

CutPlan planFor(const DialogState &state, const LabelRenderer &renderer, const LabelDocument &document,
                const PpdPaper &paper, const PageChoices &choices)
{
    const CutSettings settings = CutSettings::fromJob(state.ppd(), state.recorded());
    const MeasureBlank blank = settings.removeBlank ? MeasureBlank::Yes : MeasureBlank::No;
    std::vector<LabelExtent> extents(static_cast<std::size_t>(document.pageCount()));
    for (const int page : choices.pages)
        extents[static_cast<std::size_t>(page)] = renderer.extent(page, blank);
    // The label's top leaves the printer first.
    std::optional<double> leadingMargin;
    if (paper.margins)
        leadingMargin = paper.margins->top() * millimetresPerPoint;
    const std::vector<int> order = printOrder(pagesByDocument(choices.pages, document.pageCounts()),
                                              choices.copies, choices.collate, choices.order);
    return CutPlan::make(settings, order, extents, leadingMargin);
}

double hundredths(double points)
{
    return std::round(points * millimetresPerPoint * 100.0) / 100.0;
}

/// The documents' paths; standard input has none and stays "-".
QJsonArray documentsJson(const LabelDocument &document)
{
    QJsonArray documents;
    for (const DocumentFile &file : document.files())
        documents.append(file.name == standardInputName ? file.name
                                                        : QFileInfo(file.name).absoluteFilePath());
    return documents;
}

QJsonObject paperJson(const PpdPaper &paper)
{
    return {{"name", QString::fromUtf8(paper.name)},
            {"text", paper.text},
            {"width", hundredths(paper.size.width())},
            {"length", hundredths(paper.size.height())}};
}

} // namespace

PrintJob::PrintJob(const DialogState &state, const LabelDocument &document, const LabelRenderer &renderer,
                   const PpdPaper &paper, PageChoices choices)
    : m_state(state)
    , m_document(document)
    , m_renderer(renderer)
    , m_paper(paper)
    , m_choices(std::move(choices))
    , m_plan(planFor(state, renderer, document, paper, m_choices))
{
}

QJsonObject printJobJson(const PrintJob &job)
{
    // A list, not an object: it keeps the order in which the choices were made.
    QJsonArray options;
    options.append(QJsonObject{{"keyword", "PageSize"}, {"choice", QString::fromUtf8(job.paper().name)}});
    for (const auto &[keyword, choice] : job.state().recorded().pairs()) {
        if (keyword != QStringLiteral("PageSize"))
            options.append(QJsonObject{{"keyword", keyword}, {"choice", choice}});
    }
    const QJsonArray documents = documentsJson(job.document());
    QJsonArray pages;
    for (const int page : job.choices().pages)
        pages.append(page + 1);
    return {{"printer", job.state().ppd().printerName()},
            {"ppd", QFileInfo(job.state().ppd().path()).absoluteFilePath()},
            {"document", documents.first()},
            {"documents", documents},
            {"paper", paperJson(job.paper())},
            {"pages", pages},
            {"copies", job.choices().copies},
            {"collate", job.choices().collate == Collate::Yes},
            {"options", options},
            {"plan", cutPlanJson(job.plan())}};
}

} // namespace host
