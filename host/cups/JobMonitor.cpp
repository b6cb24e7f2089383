// SPDX-License-Identifier: Apache-2.0
#include "JobMonitor.h"

#include "JobUpload.h"

namespace host {

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
        const auto isDone = [&] {
            return task.isCancelled() || (last && last->isOver()) || lastFailure == CupsFailure::NotFound;
        };
        for (; !isDone(); task.pause(isDone() ? std::chrono::milliseconds(0) : pause)) {
            Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
            const Result<JobStatus, CupsError> now =
                connection ? queryJob(connection.value(), queue, jobId) : connection.error();
            if (now && (last != now.value() || lastFailure)) {
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

void JobMonitor::cancelJob()
{
    m_server.passwords->forgetRefusal();
    m_background.start([this, server = m_server, queue = m_queue, jobId = m_jobId](BackgroundTask &task) {
        if (const std::optional<CupsError> error = host::cancelJob(server, queue, jobId, task))
            task.deliver([this, error = *error] { Q_EMIT failed(error); });
    });
}

} // namespace host
