// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <array>
#include <csignal>
#include <optional>

class QSocketNotifier;

namespace programs {
inline namespace kvprint {

/// While it lives, the signals by which people and systems end programs (SIGINT, SIGTERM, SIGHUP) end nothing
/// but are told, so that the program can leave things in order. The second one of a kind ends the program at
/// once. A signal that was ignored before stays so, as "nohup" wants it. Not more than one at a time.
class SignalWatch : public QObject {
    Q_OBJECT

public:
    SignalWatch();
    ~SignalWatch() override;

    /// The first signal that came; nothing before. Needs no event loop.
    std::optional<int> signal();

    /// Whether the watch of this program, if there is one, has caught a signal. For who waits for something
    /// else on the main thread; takes nothing away from signal().
    static bool hasCaught();

Q_SIGNALS:
    /// The first signal has come.
    void caught();

private:
    struct Watched {
        int signal;
        struct sigaction before;
    };

    std::array<Watched, 3> m_watched{{{SIGINT, {}}, {SIGTERM, {}}, {SIGHUP, {}}}};
    /// What the handlers write; -1 when the system has no pipe to give.
    int m_readEnd = -1;
    QSocketNotifier *m_notifier = nullptr;
    std::optional<int> m_signal;
};

} // namespace kvprint
} // namespace programs
