// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Background.h"
#include "JobStatus.h"

namespace host {

/// Follows a job to its end, for as long as it lives.
class JobMonitor : public QObject {
    Q_OBJECT

public:
    /// Asks the server now and again, with this pause after each answer.
    JobMonitor(const CupsServer &server, const QString &queue, int jobId,
               std::chrono::milliseconds pause = std::chrono::seconds(1), QObject *parent = nullptr);

    /// Takes the job back; changed() tells when it is over, failed() why it cannot be.
    void cancelJob();

Q_SIGNALS:
    /// The job as it is now; the first answer, and whenever something is different. The last one is over.
    void changed(const host::JobStatus &status);
    /// The server cannot be asked, or has forgotten the job. Told once; the monitor goes on asking, unless
    /// the job is forgotten.
    void failed(const host::CupsError &error);

private:
    CupsServer m_server;
    QString m_queue;
    int m_jobId;
    Background m_background;
};

} // namespace host
