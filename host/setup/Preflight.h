// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Ticket.h"

#include <QJsonArray>
#include <QStringList>

namespace host {
inline namespace setup {

/// What a user looks for before a job wastes tape.
enum class PreflightKind {
    Shrunk,      ///< the page is larger than the label and is printed smaller
    CutOff,      ///< marks of the page lie where the printer cannot print
    Blank,       ///< nothing is printed on the label
    LonelyLabel, ///< the last piece has one label, the others have several
    LongTape,    ///< the job needs more tape than most rolls have
};

/// A warning about a job. The job can be printed nevertheless.
struct PreflightNote {
    PreflightKind kind = PreflightKind::Shrunk;
    /// The pages that it is about, from 0 and in ascending order; empty for the whole job.
    std::vector<int> pages = {};
    /// One sentence in the user's language.
    QString sentence = {};

    bool operator==(const PreflightNote &) const = default;
};

/// The tape above which a job is long.
inline constexpr Metres longTape{5.0};

/// Checks the pages of the ticket, which has a paper, as the renderer lays them out. Pages that are not
/// measured yet are measured in the background, and only their sizes are judged. Each kind occurs once.
std::vector<PreflightNote> preflight(const Ticket &ticket, const LabelRenderer &renderer,
                                     const CutPlan &plan);

/// Returns pages for sentences, counted from 1: "2, 5-7".
QString pageList(const std::vector<int> &pages);

/// Returns the notes for programs: a list with "kind", "pages", counted from 1, and "text".
QJsonArray preflightJson(const std::vector<PreflightNote> &notes);

} // namespace setup
} // namespace host
