// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>

namespace host {

/// Keeps the state of one destination current, for as long as it lives. For the one that is chosen in a
/// dialog.
class QueueMonitor : public QObject {
    Q_OBJECT

public:
    /// Asks the server now and again, with this pause after each answer.
    QueueMonitor(const CupsServer &server, const QString &queue, const std::optional<QString> &instance,
                 std::chrono::milliseconds pause = std::chrono::seconds(3), QObject *parent = nullptr);

Q_SIGNALS:
    /// The destination as it is now; the first answer, and whenever something is different.
    void changed(const host::Destination &destination);
    /// The queue is not there any more (CupsFailure::NotFound), or the server cannot be asked. Told once;
    /// the monitor goes on asking.
    void failed(const host::CupsError &error);

private:
    Background m_background;
};

} // namespace host
