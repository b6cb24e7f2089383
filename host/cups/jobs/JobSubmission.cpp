// SPDX-License-Identifier: Apache-2.0
#include "JobSubmission.h"

namespace host {
inline namespace cups {
inline namespace jobs {

JobSubmission::JobSubmission(CupsServer server, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
{
}

void JobSubmission::submit(const JobTicket &ticket)
{
    Q_ASSERT(!m_isBusy);
    m_isBusy = true;
    m_server.resetRefusals();
    m_task = m_background.start([this, server = m_server, ticket](BackgroundTask &task) {
        // "this" is only used in deliveries, on the main thread and while the object exists.
        const Result<int, CupsError> job =
            uploadJob(server, ticket, task, [&](const UploadProgress &progress) {
                task.deliver([this, progress] { Q_EMIT progressed(progress); });
            });
        task.deliver([this, job] { finish(job); });
    });
}

void JobSubmission::finish(const Result<int, CupsError> &job)
{
    m_isBusy = false;
    if (job)
        Q_EMIT submitted(job.value());
    else
        Q_EMIT failed(job.error());
}

void JobSubmission::cancel()
{
    if (!m_task || m_task->cancel() != BackgroundTask::Cancellation::BeforeStart)
        return;
    // The task delivers no result.
    QMetaObject::invokeMethod(
        this, [this] { finish(CupsConnection::canceledError()); }, Qt::QueuedConnection);
}

} // namespace jobs
} // namespace cups
} // namespace host
