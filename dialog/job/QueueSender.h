// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSender.h"

#include <host/cups/jobs/JobSubmission.h>

namespace dialog {
inline namespace job {

/// A job that a print server has.
struct SentJob {
    QString queue;
    /// The "job-id" of the server.
    int id = 0;
};

/// Sends to a queue of a print server, in the background.
class QueueSender : public JobSender {
    Q_OBJECT

public:
    /// Sends to the queues of this server; the ticket contains the queue.
    explicit QueueSender(host::CupsServer server, QObject *parent = nullptr);

    void send(const ReadyJob &job) override;
    void cancel() override { m_submission.cancel(); }

    /// The last job that was sent; absent before the first.
    const std::optional<SentJob> &lastJob() const { return m_lastJob; }

private:
    host::JobSubmission m_submission;
    /// The queue of the job that is being sent.
    QString m_queue;
    std::optional<SentJob> m_lastJob;
};

} // namespace job
} // namespace dialog
