// SPDX-License-Identifier: Apache-2.0
#include "JobMonitor.h"

#include "JobCancellation.h"

namespace host {
inline namespace cups {
inline namespace jobs {

JobMonitor::JobMonitor(const CupsServer &server, const QString &queue, int jobId,
                       std::chrono::milliseconds pause, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_queue(queue)
    , m_jobId(jobId)
{
    m_background.start([this, server, queue, jobId, pause](BackgroundTask &task) {
        std::optional<JobStatus> last;
        std::optional<CupsErrorKind> lastFailure;
        const auto isDone = [&] { return task.isCanceled() || (last && last->isOver()); };
        for (; !isDone(); task.pause(isDone() ? std::chrono::milliseconds(0) : pause)) {
            Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
            const Result<JobStatus, CupsError> now =
                connection ? queryJob(connection.value(), queue, jobId) : connection.error();
            if (!now && now.error().kind == CupsErrorKind::NotFound) {
                // The job existed, since the server assigned its number.
                last =
                    JobStatus{.jobId = jobId, .queue = queue, .state = JobState::Completed, .isPurged = true};
                task.deliver([this, status = *last] { reportPurged(status); });
            } else if (now && (last != now.value() || lastFailure)) {
                last = now.value();
                lastFailure.reset();
                task.deliver([this, status = *last] { Q_EMIT changed(status); });
            } else if (!now && lastFailure != now.error().kind) {
                lastFailure = now.error().kind;
                task.deliver([this, error = now.error()] { Q_EMIT failed(error); });
            }
        }
    });
}

void JobMonitor::reportPurged(JobStatus status)
{
    // The response to the cancellation shows whether the job was printed or canceled.
    if (m_cancellation == Cancellation::Asked) {
        m_purged = status;
        return;
    }
    if (m_cancellation == Cancellation::Done)
        status.state = JobState::Canceled;
    Q_EMIT changed(status);
}

void JobMonitor::cancellationFinished(const Result<void, CupsError> &canceled)
{
    m_cancellation = canceled ? Cancellation::Done : Cancellation::No;
    if (m_purged)
        reportPurged(*m_purged);
    else if (!canceled)
        Q_EMIT failed(canceled.error());
}

void JobMonitor::cancelJob()
{
    m_cancellation = Cancellation::Asked;
    m_server.resetRefusals();
    m_background.start([this, server = m_server, queue = m_queue, jobId = m_jobId](BackgroundTask &task) {
        const Result<void, CupsError> canceled = host::cancelJob(server, queue, jobId, task);
        task.deliver([this, canceled] { cancellationFinished(canceled); });
    });
}

} // namespace jobs
} // namespace cups
} // namespace host
