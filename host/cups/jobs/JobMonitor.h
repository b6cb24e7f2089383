// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobStatus.h"

#include <host/cups/server/Background.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Monitors a job that the server has accepted until the job is over or the monitor is destroyed.
class JobMonitor : public QObject {
    Q_OBJECT

public:
    /// Queries the server immediately, and again after the given pause following each response.
    JobMonitor(const CupsServer &server, const QString &queue, int jobId,
               std::chrono::milliseconds pause = std::chrono::seconds(1), QObject *parent = nullptr);

    /// Cancels the job. changed() reports when the job is over, failed() why it cannot be canceled.
    void cancelJob();

Q_SIGNALS:
    /// Emitted with the state of the job after the first response and after every change, the last time when
    /// it is over. A job of which the server keeps no record counts as completed, or as canceled after
    /// cancelJob().
    void changed(const host::JobStatus &status);
    /// Emitted when the query of the server fails, once for each kind of error, or when the job cannot be
    /// canceled. The monitor continues its queries.
    void failed(const host::CupsError &error);

private:
    enum class Cancellation { No, Asked, Done };

    void reportPurged(JobStatus status);
    void cancellationFinished(const Result<void, CupsError> &canceled);

    CupsServer m_server;
    QString m_queue;
    int m_jobId;
    Cancellation m_cancellation = Cancellation::No;
    /// A purged job, which is reported when the server has responded to the cancellation.
    std::optional<JobStatus> m_purged;
    Background m_background;
};

} // namespace jobs
} // namespace cups
} // namespace host
