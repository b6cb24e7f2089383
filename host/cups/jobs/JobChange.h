// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The changes to a job that was sent before; absent values do not change.
struct JobChange {
    int jobId = 0;
    /// The new name.
    std::optional<QString> title = {};
    /// Options by their PPD or IPP names, including the paper.
    std::vector<JobChoice> options = {};
    /// As for a new job. The values of hold are those of lp -i: "hold" and a time hold the job, "resume" and
    /// "immediate" release it, and "restart" reprints a job that is over, if the server has kept it.
    JobSettings settings = {};

    /// Returns whether there is nothing to change.
    bool isEmpty() const;
};

/// Changes a job like "lp -i": makes all changes, or none if the server rejects them. Returns no value, or
/// the error with the job's number. For background tasks.
///
/// A job that is over can only be restarted, not changed. With a restart, the other changes are made before
/// the job is printed; if they are rejected, the job is held.
Result<void, CupsError> changeJob(const CupsServer &server, const JobChange &change, BackgroundTask &task);

/// Returns the queue or class of the job, which may have been moved, or the error. For background tasks.
Result<QString, CupsError> queueOfJob(const CupsServer &server, int jobId, BackgroundTask &task);

/// Returns the reason with a message that the job was not changed.
CupsError notChanged(int jobId, CupsError reason);

} // namespace jobs
} // namespace cups
} // namespace host
