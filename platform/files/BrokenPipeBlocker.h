// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>

namespace platform {
inline namespace files {

/// Prevents SIGPIPE in the calling thread while the object exists. A write to a pipe without a reader still
/// fails with EPIPE.
class BrokenPipeBlocker {
public:
    /// Blocks SIGPIPE in the calling thread.
    BrokenPipeBlocker();
    /// Removes the signal that raised() reports, and restores the signal mask. Must run in the thread of the
    /// constructor.
    ~BrokenPipeBlocker();
    BrokenPipeBlocker(const BrokenPipeBlocker &) = delete;
    BrokenPipeBlocker &operator=(const BrokenPipeBlocker &) = delete;

    /// Must be called after a write that failed with EPIPE.
    void raised() { m_raised = true; }

private:
    sigset_t m_signal;
    sigset_t m_previousMask;
    bool m_wasPending = false;
    bool m_raised = false;
};

} // namespace files
} // namespace platform
