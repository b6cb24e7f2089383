// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobTicket.h>
#include <host/documents/PageChoices.h>
#include <host/labels/LabelRenderer.h>
#include <host/panels/PanelSettings.h>
#include <host/printer/Constraints.h>
#include <host/strip/CutPlan.h>

#include <functional>

namespace host {
inline namespace setup {

/// The settings of a job other than the options of the printer.
struct JobRequest {
    /// Absent values stand for the queue's defaults.
    JobSettings settings;
    /// The job's name in the queue.
    QString title;
    /// The pages in print order with their copies, as determined by the settings.
    PageChoices pages;
};

/// The input of makeTicket(). Everything is borrowed.
struct TicketSource {
    const Destination &destination;
    /// The printer's name for users.
    QString printer;
    /// The PPD with its marked choices; null for a queue without a PPD.
    const PpdFile *ppd;
    /// The constraints of the PPD; null without a PPD.
    const Constraints *constraints;
    /// All choices with their origins.
    const std::vector<JobChoice> &choices;
    /// Options that a remedy keeps if possible: the one that was chosen last, and those whose choice the
    /// panel replaces.
    std::set<QString> kept;
    /// What the panel would save now.
    const PanelSettings &panel;
    /// Absent without a PPD, or if the PPD has no usable paper.
    const std::optional<PpdPaper> &paper;
    const LabelDocument &document;
    const JobRequest &request;
    /// Returns what the options of the panels do to the labels with these choices of the job; empty without a
    /// panel, in which case the cutting is not known.
    std::function<StripEffects(const PDEChoices &, std::span<const PDELabel>)> stripEffects;
};

/// Everything that is sent if the user presses Print now. All that shows or sends the job is made from this
/// value alone: the strip, its figures and sentences, the summary, "What will be sent", conflicts,
/// --dry-run, --summary, the files of the virtual printer, and the job.
struct Ticket {
    /// What the print server receives.
    JobTicket job;
    /// The names of the document and of the printer for users.
    QString document;
    QString printer;
    /// Absent without a PPD, or if the PPD has no usable paper; then there is no strip.
    std::optional<PpdPaper> paper;
    /// Where the pages lie on the paper; absent without a paper.
    std::optional<PageLayout> layout;
    PageChoices pages;
    /// The settings of the job, the destination's defaults included.
    JobSettings settings;
    /// The pages in print order, with all copies.
    std::vector<PrintedPage> order;
    /// What the settings do to the labels. Their ends, if known, are as many as the pages in print order.
    StripEffects strip;
    /// All choices with their origins, including the settings of the panel.
    std::vector<JobChoice> choices;
    /// What the panel would save now, and whether it lets the job be printed.
    PanelSettings panel;
    std::vector<Conflict> conflicts;
    /// Resolves all conflicts without changing the paper; absent without conflicts, or if there is no such
    /// resolution.
    std::optional<Remedy> remedy;
};

/// Returns the ticket. A pure function: the same source gives the same ticket, and nothing changes.
Ticket makeTicket(const TicketSource &source);

/// Returns the plan of cuts of a ticket that has a paper, for the pages as the renderer lays them out on
/// that paper.
CutPlan makePlan(const Ticket &ticket, const LabelDocument &document, const LabelRenderer &renderer);

} // namespace setup
} // namespace host
