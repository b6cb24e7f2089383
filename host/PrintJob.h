// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"
#include "DialogState.h"
#include "LabelRenderer.h"
#include "PrintOrder.h"

namespace host {

/// The choices of the dialog's own page.
struct PageChoices {
    /// The pages to print, counted from 0 through all documents, in order.
    std::vector<int> pages;
    int copies = 1;
    Collate collate = Collate::Yes;
    PageOrder order = PageOrder::FirstFirst;
};

/// Documents, about to be printed on a printer's paper with the choices made in a dialog. Made anew from
/// the dialog's state whenever something changes; cheap, as the labels' drawings are kept by the renderer.
class PrintJob {
public:
    /// All three are borrowed.
    PrintJob(const DialogState &state, const LabelDocument &document, const LabelRenderer &renderer,
             const PpdPaper &paper, PageChoices choices);

    const DialogState &state() const { return m_state; }
    const LabelDocument &document() const { return m_document; }
    const LabelRenderer &renderer() const { return m_renderer; }
    const PpdPaper &paper() const { return m_paper; }
    const PageChoices &choices() const { return m_choices; }
    const CutPlan &plan() const { return m_plan; }

private:
    const DialogState &m_state;
    const LabelDocument &m_document;
    const LabelRenderer &m_renderer;
    PpdPaper m_paper;
    PageChoices m_choices;
    CutPlan m_plan;
};

/// The job for programs: printer, documents, paper, copies, the option choices that were recorded, and the
/// plan of cuts.
QJsonObject printJobJson(const PrintJob &job);

} // namespace host
