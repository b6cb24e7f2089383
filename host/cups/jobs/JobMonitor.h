// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobStatus.h"

#include <host/cups/server/Background.h>

namespace host {

/// Follows a job that the server has taken to its end, for as long as it lives.
class JobMonitor : public QObject {
    Q_OBJECT

public:
    /// Asks the server now and again, with this pause after each answer.
    JobMonitor(const CupsServer &server, const QString &queue, int jobId,
               std::chrono::milliseconds pause = std::chrono::seconds(1), QObject *parent = nullptr);

    /// Takes the job back; changed() tells when it is over, failed() why it cannot be.
    void cancelJob();

Q_SIGNALS:
    /// The job as it is now; the first answer, and whenever something is different. The last one is over; a
    /// job of which the server keeps no record is completed, or cancelled after cancelJob().
    void changed(const host::JobStatus &status);
    /// The server cannot be asked, or the job cannot be taken back. Told once; the monitor goes on asking.
    void failed(const host::CupsError &error);

private:
    enum class TakingBack { No, Asked, Done };

    void tellForgotten(JobStatus status);
    void takeCancelled(const std::optional<CupsError> &error);

    CupsServer m_server;
    QString m_queue;
    int m_jobId;
    TakingBack m_takingBack = TakingBack::No;
    /// Told when the server has answered whether it took the job back.
    std::optional<JobStatus> m_forgotten;
    Background m_background;
};

} // namespace host
