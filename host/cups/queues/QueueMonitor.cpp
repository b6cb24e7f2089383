// SPDX-License-Identifier: Apache-2.0
#include "QueueMonitor.h"

#include "DestinationQuery.h"

namespace host {
inline namespace cups {
inline namespace queues {

QueueMonitor::QueueMonitor(const CupsServer &server, const QString &queue,
                           const std::optional<QString> &instance, std::chrono::milliseconds pause,
                           QObject *parent)
    : QObject(parent)
{
    m_background.start([this, server, queue, instance, pause](BackgroundTask &task) {
        std::optional<Destination> last;
        std::optional<CupsErrorKind> lastFailure;
        for (; !task.isCanceled(); task.pause(pause)) {
            // One connection per query: servers close connections that are idle for long.
            Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
            const Result<Destination, CupsError> now =
                connection ? queryDestination(connection.value(), queue, instance) : connection.error();
            if (now && (last != now.value() || lastFailure)) {
                last = now.value();
                lastFailure.reset();
                task.deliver([this, destination = *last] { Q_EMIT changed(destination); });
            } else if (!now && lastFailure != now.error().kind) {
                lastFailure = now.error().kind;
                task.deliver([this, error = now.error()] { Q_EMIT failed(error); });
            }
        }
    });
}

} // namespace queues
} // namespace cups
} // namespace host
