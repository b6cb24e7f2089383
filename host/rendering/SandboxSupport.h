// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {
inline namespace rendering {

/// What the kernel offers to confine the processes that read documents.
struct SandboxSupport {
    /// Landlock: access to files.
    bool restrictsFiles = false;
    /// seccomp: system calls, and with them sockets and processes.
    bool restrictsCalls = false;
};

/// Asks the kernel.
SandboxSupport sandboxSupport();

} // namespace rendering
} // namespace host
