// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>

namespace platform {
inline namespace files {

/// Keeps a write to a pipe without a reader from raising SIGPIPE in the calling thread while the object
/// lives; the write fails with EPIPE all the same.
class BrokenPipeSilence {
public:
    BrokenPipeSilence();
    ~BrokenPipeSilence();
    BrokenPipeSilence(const BrokenPipeSilence &) = delete;
    BrokenPipeSilence &operator=(const BrokenPipeSilence &) = delete;

    /// To be called after a write that failed with EPIPE.
    void raised() { m_raised = true; }

private:
    sigset_t m_signal;
    sigset_t m_previousMask;
    bool m_wasPending = false;
    bool m_raised = false;
};

} // namespace files
} // namespace platform
