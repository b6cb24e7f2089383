// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <array>
#include <csignal>
#include <optional>

class QSocketNotifier;

namespace programs {
inline namespace kvprint {

/// During its lifetime, SIGINT, SIGTERM and SIGHUP do not end the program but are reported, so that the
/// program can cancel its job and remove its files. The second signal of a kind ends the program
/// immediately. A signal that was ignored before remains ignored, as "nohup" requires. At most one object
/// may exist at a time.
class SignalWatch : public QObject {
    Q_OBJECT

public:
    /// Installs the handlers; the destructor restores the previous ones.
    SignalWatch();
    ~SignalWatch() override;

    /// Returns the first signal that was received; absent before. Needs no event loop.
    std::optional<int> signal();

    /// Returns whether the program's SignalWatch, if there is one, has received a signal. For code that
    /// waits on the main thread; does not change signal().
    static bool hasCaught();

Q_SIGNALS:
    /// Emitted when the first signal is received.
    void caught();

private:
    struct Watched {
        int signal;
        struct sigaction before;
    };

    std::array<Watched, 3> m_watched{{{SIGINT, {}}, {SIGTERM, {}}, {SIGHUP, {}}}};
    /// The end of the pipe to which the handlers write; -1 if the system cannot create a pipe.
    int m_readEnd = -1;
    QSocketNotifier *m_notifier = nullptr;
    std::optional<int> m_signal;
};

} // namespace kvprint
} // namespace programs
