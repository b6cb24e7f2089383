// SPDX-License-Identifier: Apache-2.0
#include "DescriptorOutput.h"

#include <cerrno>
#include <csignal>
#include <ctime>

#include <unistd.h>

namespace diag {

namespace {

/// Keeps a write to a pipe without a reader from raising SIGPIPE in the calling thread.
class BrokenPipeSilence {
public:
    BrokenPipeSilence()
    {
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGPIPE);
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_previousMask);
    }
    ~BrokenPipeSilence()
    {
        // One that was pending before is somebody else's and stays.
        constexpr timespec atOnce{0, 0};
        if (m_raised && !m_wasPending)
            sigtimedwait(&m_signal, nullptr, &atOnce);
        pthread_sigmask(SIG_SETMASK, &m_previousMask, nullptr);
    }
    BrokenPipeSilence(const BrokenPipeSilence &) = delete;
    BrokenPipeSilence &operator=(const BrokenPipeSilence &) = delete;

    void raised() { m_raised = true; }

private:
    sigset_t m_signal;
    sigset_t m_previousMask;
    bool m_wasPending = false;
    bool m_raised = false;
};

} // namespace

void writeFully(int descriptor, QByteArrayView bytes)
{
    BrokenPipeSilence silence;
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written >= 0) {
            bytes = bytes.sliced(written);
            continue;
        }
        if (errno == EPIPE)
            silence.raised();
        if (errno != EINTR)
            return;
    }
}

} // namespace diag
