// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSettings.h"

#include <host/printer/PpdFile.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The origin of a job option. A later origin overrides an earlier one.
enum class Origin { Ppd, Queue, UserDefault, Preset, Panel, You, Layout };

/// Returns the origin as text in the user's language, "printer default", "set by you". Layout: the pages are
/// already laid out on the paper, and the option keeps the server's filters from doing it again.
QString originText(Origin origin);

/// A choice for the job: an option by its PPD or IPP name, byte for byte.
struct JobChoice {
    QByteArray name;
    QByteArray value;
    /// Preset, Panel or You.
    Origin origin = Origin::You;
    /// Whether a panel passes the choice, whatever its origin; the job then contains it even if it equals the
    /// queue's default.
    bool isPanels = false;
};

/// Adds the choice or replaces that of the same option; each option occurs once, in the order in which it was
/// first added. A choice whose value does not change keeps its origin: a panel that saves what the user
/// requested has not made the choice.
void setJobChoice(std::vector<JobChoice> &choices, const JobChoice &choice);

/// Returns the choices with those of the PPD instead of "finishings", so that they can be shown and changed.
/// A choice of an option itself counts more. See Finishings.h.
std::vector<JobChoice> withFinishingsAsChoices(const PpdFile &ppd, const std::vector<JobChoice> &choices);

/// An option of a job, with its origin.
struct JobOption {
    QByteArray name;
    QByteArray value;
    Origin origin = Origin::Ppd;
    /// Whether the job contains the option. The server sets the other options to the same values by itself.
    bool isSent = false;

    bool operator==(const JobOption &) const = default;
};

/// Returns all options of the job: those of the PPD in the PPD's order, then all others. ppd may be null.
///
/// The options that are sent are the paper, always and under the PPD's exact name; the options that a panel
/// has saved; the user's lpoptions, which the server does not know; and all others that differ from what the
/// server does by itself. Without a PPD, the choices are sent unchanged. For choices that stand for
/// finishings of IPP, the job also contains "finishings", unless the choices do; see Finishings.h.
std::vector<JobOption> makeJobOptions(const Destination &destination, const PpdFile *ppd,
                                      const std::vector<JobChoice> &choices, const JobSettings &settings);

/// Returns the paper of the queue that overrides the PPD's default: that of its "PageSize", otherwise that of
/// its "media", for which the server accepts any name. Returns no value if it names none of the PPD's papers
/// byte for byte: IPP names ("om_24mm_24x60mm") are created by the server itself from the PPD's default.
std::optional<QByteArray> queuePaper(const Destination &destination, const PpdFile &ppd);

/// Marks the default choices of a job to the destination in the PPD: the PPD's defaults, overridden by those
/// of the queue and of the user's lpoptions.
void markEffectiveDefaults(PpdFile &ppd, const Destination &destination);

} // namespace jobs
} // namespace cups
} // namespace host
