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
        std::optional<CupsFailure> lastFailure;
        const auto isDone = [&] { return task.isCancelled() || (last && last->isOver()); };
        for (; !isDone(); task.pause(isDone() ? std::chrono::milliseconds(0) : pause)) {
            Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
            const Result<JobStatus, CupsError> now =
                connection ? queryJob(connection.value(), queue, jobId) : connection.error();
            if (!now && now.error().kind == CupsFailure::NotFound) {
                // The job existed, since the server assigned its number.
                last = JobStatus{
                    .jobId = jobId, .queue = queue, .state = JobState::Completed, .isForgotten = true};
                task.deliver([this, status = *last] { tellForgotten(status); });
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

void JobMonitor::tellForgotten(JobStatus status)
{
    // The response to the cancellation shows whether the job was printed or canceled.
    if (m_takingBack == TakingBack::Asked) {
        m_forgotten = status;
        return;
    }
    if (m_takingBack == TakingBack::Done)
        status.state = JobState::Cancelled;
    Q_EMIT changed(status);
}

void JobMonitor::takeCancelled(const Result<void, CupsError> &canceled)
{
    m_takingBack = canceled ? TakingBack::Done : TakingBack::No;
    if (m_forgotten)
        tellForgotten(*m_forgotten);
    else if (!canceled)
        Q_EMIT failed(canceled.error());
}

void JobMonitor::cancelJob()
{
    m_takingBack = TakingBack::Asked;
    m_server.forgetRefusals();
    m_background.start([this, server = m_server, queue = m_queue, jobId = m_jobId](BackgroundTask &task) {
        const Result<void, CupsError> canceled = host::cancelJob(server, queue, jobId, task);
        task.deliver([this, canceled] { takeCancelled(canceled); });
    });
}

} // namespace jobs
} // namespace cups
} // namespace host
