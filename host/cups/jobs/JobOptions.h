// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSettings.h"

#include <host/printer/PpdFile.h>

namespace host {

/// Who set an option of a job. A later one stands over an earlier one.
enum class Origin { Ppd, Queue, UserDefault, Preset, Panel, You };

/// The origin in words, "printer default", "set by you".
QString originText(Origin origin);

/// A choice made for the job: an option by its PPD or IPP name, byte for byte.
struct JobChoice {
    QByteArray name;
    QByteArray value;
    /// Preset, Panel or You.
    Origin origin = Origin::You;
    /// A panel hands it over, whoever has chosen it; the job carries it even where the queue does the same.
    bool isPanels = false;
};

/// Makes the choice one of the choices, each option once and in the order of the first choosing. A choice
/// that was made before with the same value keeps its origin: a panel that saves what the user asked for has
/// not chosen anything.
void setJobChoice(std::vector<JobChoice> &choices, const JobChoice &choice);

/// An option of a job, with where it comes from.
struct JobOption {
    QByteArray name;
    QByteArray value;
    Origin origin = Origin::Ppd;
    /// Whether the job carries it. The server sets the others to the same value by itself.
    bool isSent = false;

    bool operator==(const JobOption &) const = default;
};

/// Every option of the job: those of the PPD in the PPD's order, then all others.
///
/// Sent are the paper, always and under the PPD's exact name; what a panel has recorded; what the user's
/// lpoptions say, of which the server knows nothing; and whatever else differs from what the server does by
/// itself. Without a PPD, the choices are sent as they are.
std::vector<JobOption> makeJobOptions(const Destination &destination, const PpdFile *ppd,
                                      const std::vector<JobChoice> &choices, const JobSettings &settings);

/// The paper that the queue is set to use, instead of the PPD's default: of its "PageSize", else of its
/// "media", which the server takes for any name. Nothing when it names none of the PPD's papers byte for
/// byte: the names of IPP ("om_24mm_24x60mm") the server has made itself, from the PPD's default.
std::optional<QByteArray> queuePaper(const Destination &destination, const PpdFile &ppd);

/// Marks in the PPD what a job to the destination would have without any choice: the PPD's defaults and over
/// them what the queue and the user's lpoptions say.
void markEffectiveDefaults(PpdFile &ppd, const Destination &destination);

} // namespace host
