// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace programs {
inline namespace sandbox {

/// Restricts the process to the system calls that reading a document needs (seccomp): memory, threads,
/// clocks, open descriptors, and opening files for reading. Sockets, other processes and changes of the
/// system end it with SIGSYS; all other calls fail with EPERM. Does nothing where the kernel has no seccomp.
void allowSystemCallsOfReaders();

} // namespace sandbox
} // namespace programs
