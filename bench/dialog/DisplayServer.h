// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcess>

namespace bench {

/// An Xvfb of the bench's own, without a window manager; ends with the object.
class DisplayServer {
public:
    /// Starts the server and waits until it accepts clients; name() is empty when it does not start.
    DisplayServer();
    ~DisplayServer();
    DisplayServer(const DisplayServer &) = delete;
    DisplayServer &operator=(const DisplayServer &) = delete;

    /// The display name as in $DISPLAY, ":99".
    const QByteArray &name() const { return m_name; }

private:
    QProcess m_process;
    QByteArray m_name;
};

} // namespace bench
