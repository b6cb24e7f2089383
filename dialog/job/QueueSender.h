// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSender.h"

#include <host/cups/jobs/JobSubmission.h>

namespace dialog {
inline namespace job {

/// Sends to a queue of a print server, in the background.
class QueueSender : public JobSender {
    Q_OBJECT

public:
    /// Sends to the queues of this server; the ticket contains the queue.
    explicit QueueSender(host::CupsServer server, QObject *parent = nullptr);

    void send(const ReadyJob &job) override;
    void cancel() override { m_submission.cancel(); }

    /// The queue and the number of the last job that was sent; empty and 0 before the first.
    const QString &queue() const { return m_queue; }
    int jobId() const { return m_jobId; }

private:
    host::JobSubmission m_submission;
    QString m_queue;
    int m_jobId = 0;
};

} // namespace job
} // namespace dialog
