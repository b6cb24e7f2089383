// SPDX-License-Identifier: Apache-2.0
#include "QueueSender.h"

namespace dialog {
inline namespace job {

QueueSender::QueueSender(host::CupsServer server, QObject *parent)
    : JobSender(parent)
    , m_submission(std::move(server))
{
    connect(
        &m_submission, &host::JobSubmission::progressed, this, [this](const host::UploadProgress &progress) {
            // Nothing is known of a job whose documents are all empty, or come from standard input.
            const bool isKnown = progress.total.value_or(0) > 0;
            Q_EMIT progressed(isKnown ? std::optional(static_cast<int>(100 * progress.sent / *progress.total))
                                      : std::nullopt);
        });
    connect(&m_submission, &host::JobSubmission::submitted, this, [this](int jobId) {
        m_lastJob = SentJob{m_queue, jobId};
        Q_EMIT sent();
    });
    connect(&m_submission, &host::JobSubmission::failed, this, [this](const host::CupsError &error) {
        if (error.kind == host::CupsErrorKind::Canceled)
            Q_EMIT canceled();
        else
            Q_EMIT failed(error.message);
    });
}

void QueueSender::send(const ReadyJob &job)
{
    m_queue = job.ticket.job.destination.queue;
    m_submission.submit(job.ticket.job);
}

} // namespace job
} // namespace dialog
