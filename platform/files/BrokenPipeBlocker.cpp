// SPDX-License-Identifier: Apache-2.0
#include "BrokenPipeBlocker.h"

#include <ctime>

namespace platform {
inline namespace files {

BrokenPipeBlocker::BrokenPipeBlocker()
{
    sigemptyset(&m_signal);
    sigaddset(&m_signal, SIGPIPE);
    sigset_t pending;
    sigpending(&pending);
    m_wasPending = sigismember(&pending, SIGPIPE) == 1;
    pthread_sigmask(SIG_BLOCK, &m_signal, &m_previousMask);
}

BrokenPipeBlocker::~BrokenPipeBlocker()
{
    // A signal that was already pending belongs to other code and stays pending.
    constexpr timespec atOnce{0, 0};
    if (m_raised && !m_wasPending)
        sigtimedwait(&m_signal, nullptr, &atOnce);
    pthread_sigmask(SIG_SETMASK, &m_previousMask, nullptr);
}

} // namespace files
} // namespace platform
