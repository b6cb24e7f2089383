// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobTicket.h>
#include <host/documents/LabelRenderer.h>
#include <host/documents/PageChoices.h>
#include <host/panels/PanelSettings.h>
#include <host/printer/Constraints.h>
#include <host/strip/CutPlan.h>

namespace host {
inline namespace setup {

/// What is set for the job beside the printer's own options.
struct JobRequest {
    /// Nothing in it stands for the queue's own setting.
    JobSettings settings;
    /// The job's name in the queue.
    QString title;
    /// Which pages come out and how often, as settings say it.
    PageChoices pages;
};

/// What a ticket is made of. Everything is borrowed.
struct TicketSource {
    const Destination &destination;
    /// For people: the printer's name.
    QString printer;
    /// With what is marked; null for a queue without a PPD.
    const PpdFile *ppd;
    /// Of the PPD; null without one.
    const Constraints *constraints;
    /// What was chosen and by whom.
    const std::vector<JobChoice> &choices;
    /// Options that a remedy leaves as they are if it can: the one that was chosen last, and those whose
    /// choice the panel replaces.
    std::set<QString> kept;
    /// What the panel would save now.
    const PanelSettings &panel;
    /// Absent without a PPD, or when the PPD names no paper.
    const std::optional<PpdPaper> &paper;
    const LabelDocument &document;
    const JobRequest &draft;
};

/// What would be sent if Print were pressed now: the one value from which everything is made that shows the
/// job or sends it. The strip, its figures and sentences, the summary, "What will be sent", conflicts,
/// --dry-run,
/// --summary, the virtual printer's files and the job itself read nothing else.
struct Ticket {
    /// What the print server receives.
    JobTicket job;
    /// For people: the document's and the printer's name.
    QString document;
    QString printer;
    /// Absent without a PPD, or when the PPD names no paper: there is no strip then.
    std::optional<PpdPaper> paper;
    PageChoices pages;
    /// The settings of the job, the destination's defaults included.
    JobSettings settings;
    /// How the labels are cut; areKnown is false without a PPD.
    CutSettings cuts;
    /// What was chosen and by whom, the panel's settings included.
    std::vector<JobChoice> choices;
    /// What the panel would save now, and whether it lets the job be printed.
    PanelSettings panel;
    std::vector<Conflict> conflicts;
    /// Ends all conflicts without touching the paper; absent when there is none or no way.
    std::optional<Remedy> remedy;
};

/// Makes the ticket. A pure function: the same source gives the same ticket, and nothing changes.
Ticket makeTicket(const TicketSource &source);

/// The plan of cuts of a ticket that has a paper, for the pages as the renderer lays them on that paper.
CutPlan makePlan(const Ticket &ticket, const LabelDocument &document, const LabelRenderer &renderer);

} // namespace setup
} // namespace host
