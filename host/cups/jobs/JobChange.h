// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/cups/server/CupsConnection.h>

namespace host {

/// What is to become of a job that was sent before; what is not named stays as it is.
struct JobChange {
    int jobId = 0;
    /// A new name.
    std::optional<QString> title = {};
    /// Options by their PPD or IPP names; the paper is one of them.
    std::vector<JobChoice> options = {};
    /// As for a new job. Its hold says what lp says with -i: "hold" and a time make the job wait, "resume"
    /// and "immediate" let it go on, "restart" prints a job anew that is over, if the server has kept it.
    JobSettings settings = {};

    /// Whether there is nothing to change.
    bool isEmpty() const;
};

/// Changes a job as "lp -i" does: all of it or, when the server refuses, nothing. Answers nothing, or why it
/// was not done, with the job's number. For tasks in the background.
///
/// A job that is over cannot be changed, only restarted. With a restart the other changes are made before
/// the job is printed; if they are refused, it is held.
std::optional<CupsError> changeJob(const CupsServer &server, const JobChange &change, BackgroundTask &task);

/// The queue or class that the job is in now, or why nobody knows. For tasks in the background.
Result<QString, CupsError> queueOfJob(const CupsServer &server, int jobId, BackgroundTask &task);

/// The reason with what it means for the job: that it was not changed.
CupsError notChanged(int jobId, CupsError reason);

} // namespace host
