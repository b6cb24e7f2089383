// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

#include <QStringList>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The state of a job; the values are those of IPP's "job-state".
enum class JobState {
    Waiting = 3,
    Held = 4,
    Printing = 5,
    Stopped = 6,
    Canceled = 7,
    Aborted = 8,
    Completed = 9,
};

/// A job as reported by the server.
struct JobStatus {
    int jobId = 0;
    QString queue;
    JobState state = JobState::Waiting;
    /// IPP keywords such as "job-hold-until-specified"; never "none".
    QStringList reasons = {};
    /// The printer's IPP keywords, such as "media-empty-error"; never "none".
    QStringList printerReasons = {};
    /// The server's message.
    QString message = {};
    /// The value of "job-hold-until"; absent if the server does not report it.
    std::optional<QString> heldUntil = {};
    /// The number of printed labels, as far as the printer reports it.
    int sheetsCompleted = 0;
    /// The number of documents that the server has; absent if the server does not report it.
    std::optional<int> documents = {};
    /// The job was purged: the server had the job and keeps no record of it, because it keeps no job history.
    /// Whether the job was printed is unknown.
    bool isPurged = false;

    /// Whether the job is completed, canceled or aborted.
    bool isOver() const { return state >= JobState::Canceled; }
    /// Describes the job in one sentence each, in the user's language: its state, the printer's reasons to
    /// wait, and the server's message if that adds something.
    QStringList sentences() const;

    bool operator==(const JobStatus &) const = default;
};

/// Queries the state of a job. For background tasks.
Result<JobStatus, CupsError> queryJob(CupsConnection &connection, const QString &queue, int jobId);

} // namespace jobs
} // namespace cups
} // namespace host
