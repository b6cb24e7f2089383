// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcess>

namespace bench {

/// An Xvfb of the bench's own, without a window manager; ends with the object.
class DisplayServer {
public:
    /// Starts it and waits until it takes clients; name() is empty when it does not start.
    DisplayServer();
    ~DisplayServer();
    DisplayServer(const DisplayServer &) = delete;
    DisplayServer &operator=(const DisplayServer &) = delete;

    /// As it stands in $DISPLAY, ":99".
    const QByteArray &name() const { return m_name; }

private:
    QProcess m_process;
    QByteArray m_name;
};

} // namespace bench
