// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

#include <QStringList>

namespace host {

/// What has become of a job so far; the numbers are IPP's.
enum class JobState {
    Waiting = 3,
    Held = 4,
    Printing = 5,
    Stopped = 6,
    Cancelled = 7,
    Aborted = 8,
    Completed = 9,
};

/// A job as the server tells of it.
struct JobStatus {
    int jobId = 0;
    QString queue;
    JobState state = JobState::Waiting;
    /// IPP's keywords, "job-hold-until-specified"; never "none".
    QStringList reasons = {};
    /// The printer's, "media-empty-error".
    QStringList printerReasons = {};
    /// The server's own words.
    QString message = {};
    /// Until when the job is held, as in "job-hold-until".
    QString heldUntil = {};
    /// Labels that have come out, as far as the printer tells.
    int sheetsCompleted = 0;
    /// How many documents the server has; nothing when it does not tell.
    std::optional<int> documents = {};
    /// The server has had the job and knows nothing of it any more, as servers do that keep no history. How
    /// it came to its end nobody can tell.
    bool isForgotten = false;

    /// Nothing will happen to the job any more.
    bool isOver() const { return state >= JobState::Cancelled; }
    /// One sentence each, in the user's language: how the job is, what the printer waits for, and the
    /// server's own words when they say more.
    QStringList sentences() const;

    bool operator==(const JobStatus &) const = default;
};

/// Asks for a job. For tasks in the background.
Result<JobStatus, CupsError> queryJob(CupsConnection &connection, const QString &queue, int jobId);

} // namespace host
