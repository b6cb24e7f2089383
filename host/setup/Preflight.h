// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Ticket.h"

#include <QJsonArray>
#include <QStringList>

namespace host {
inline namespace setup {

/// What a user looks for before a job wastes tape.
enum class PreflightKind {
    Undrawable,  ///< the page cannot be drawn; the job cannot be printed
    Shrunk,      ///< the page is larger than the label and is printed smaller
    Orientation, ///< the page fits in another orientation, and is printed smaller in the chosen one
    CutOff,      ///< marks of the page lie where the printer cannot print
    Blank,       ///< nothing is printed on the label
    LonelyLabel, ///< the last piece has one label, the others have several
    Mirrored,    ///< the labels are mirrored, and no choice of the job is a transparent medium
    LongTape,    ///< the job needs more tape than most rolls have
};

/// A setting with which a warning does not occur.
struct PreflightRemedy {
    /// What the user reads: 'Use "Tape 36 mm x 80 mm"'.
    QString text;
    /// The option of the job and its value, as lp names them: "PageSize", "page-ranges" or
    /// "orientation-requested".
    NamedValue option;

    bool operator==(const PreflightRemedy &) const = default;
};

/// A warning about a job. Except for Undrawable, the job can be printed nevertheless.
struct PreflightNote {
    PreflightKind kind = PreflightKind::Shrunk;
    /// The pages that it is about, from 0 and in ascending order; empty for the whole job.
    std::vector<int> pages = {};
    /// One sentence in the user's language.
    QString sentence = {};
    /// Absent if there is no such setting.
    std::optional<PreflightRemedy> remedy = {};

    bool operator==(const PreflightNote &) const = default;
};

/// The tape above which a job is long.
inline constexpr Metres longTape{5.0};

/// Checks the pages of the ticket, which has a paper, as the renderer lays them out. Pages that are not
/// measured yet are measured in the background, and only their sizes are judged. Each kind occurs once.
/// The papers are those that can replace the one of the ticket.
std::vector<PreflightNote> preflight(const Ticket &ticket, const LabelDocument &document,
                                     const LabelRenderer &renderer, const CutPlan &plan,
                                     const std::vector<PpdPaper> &papers);

/// Returns an error if a page of the ticket is known to be impossible to draw: what cannot be shown is not
/// printed.
Result<void, QString> checkDrawing(const Ticket &ticket, const LabelDocument &document);

/// Returns pages for sentences, counted from 1: "2, 5-7".
QString pageList(const std::vector<int> &pages);

/// Returns the notes for programs: a list with "kind", "pages", counted from 1, "text" and, if
/// there is a remedy, "remedy" as NAME=VALUE.
QJsonArray preflightJson(const std::vector<PreflightNote> &notes);

} // namespace setup
} // namespace host
