// SPDX-License-Identifier: Apache-2.0
#include "SignalWatch.h"

#include <QSocketNotifier>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace programs {
inline namespace kvprint {

namespace {

/// The only state that the handlers may use; -1 while there is no SignalWatch.
volatile std::sig_atomic_t writeEnd = -1;
volatile std::sig_atomic_t isCaught = 0;

void passOn(int signal)
{
    const int before = errno;
    isCaught = 1;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = before;
}

} // namespace

SignalWatch::SignalWatch()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    isCaught = 0;
    m_notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        if (signal())
            Q_EMIT caught();
    });
    struct sigaction action = {};
    action.sa_handler = passOn;
    // A second signal ends the program immediately.
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    for (Watched &each : m_watched) {
        sigaction(each.signal, nullptr, &each.before);
        if (each.before.sa_handler != SIG_IGN)
            sigaction(each.signal, &action, nullptr);
    }
}

SignalWatch::~SignalWatch()
{
    if (m_readEnd < 0)
        return;
    for (const Watched &each : m_watched)
        sigaction(each.signal, &each.before, nullptr);
    const int unused = writeEnd;
    writeEnd = -1;
    ::close(unused);
    delete m_notifier;
    ::close(m_readEnd);
}

bool SignalWatch::hasCaught()
{
    return isCaught != 0;
}

std::optional<int> SignalWatch::signal()
{
    unsigned char byte = 0;
    if (!m_signal && m_readEnd >= 0 && ::read(m_readEnd, &byte, 1) == 1)
        m_signal = byte;
    return m_signal;
}

} // namespace kvprint
} // namespace programs
