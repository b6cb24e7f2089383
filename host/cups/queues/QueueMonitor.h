// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace queues {

/// Monitors the state of one destination until the monitor is destroyed. For the chosen destination of a
/// dialog.
class QueueMonitor : public QObject {
    Q_OBJECT

public:
    /// Queries the server immediately, and again after the given pause following each response.
    QueueMonitor(const CupsServer &server, const QString &queue, const std::optional<QString> &instance,
                 std::chrono::milliseconds pause = std::chrono::seconds(3), QObject *parent = nullptr);

Q_SIGNALS:
    /// Emitted with the state of the destination after the first response and after every change.
    void changed(const host::Destination &destination);
    /// Emitted when the queue no longer exists (CupsErrorKind::NotFound) or the query of the server fails.
    /// Emitted once for each kind of error; the monitor continues its queries.
    void failed(const host::CupsError &error);

private:
    Background m_background;
};

} // namespace queues
} // namespace cups
} // namespace host
