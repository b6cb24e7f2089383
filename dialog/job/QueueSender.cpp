// SPDX-License-Identifier: Apache-2.0
#include "QueueSender.h"

namespace dialog {
inline namespace job {

QueueSender::QueueSender(host::CupsServer server, QObject *parent)
    : JobSender(parent)
    , m_submission(std::move(server))
{
    connect(&m_submission, &host::JobSubmission::progressed, this,
            [this](const host::UploadProgress &progress) {
                Q_EMIT progressed(progress.total > 0 ? static_cast<int>(100 * progress.sent / progress.total)
                                                     : -1);
            });
    connect(&m_submission, &host::JobSubmission::submitted, this, [this](int jobId) {
        m_jobId = jobId;
        Q_EMIT sent();
    });
    connect(&m_submission, &host::JobSubmission::failed, this, [this](const host::CupsError &error) {
        Q_EMIT failed(error.kind == host::CupsErrorKind::Canceled ? QString() : error.message);
    });
}

void QueueSender::send(const ReadyJob &job)
{
    m_queue = job.ticket.job.destination.queue;
    m_submission.submit(job.ticket.job);
}

} // namespace job
} // namespace dialog
