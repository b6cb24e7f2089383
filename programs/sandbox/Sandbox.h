// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace programs {
inline namespace sandbox {

/// What a process that reads a document may use.
struct SandboxRules {
    /// The processor time in seconds; 0 if the parent process limits it for each request.
    unsigned seconds = 0;
    /// The address space in bytes.
    std::size_t bytes = 0;
    /// The folders whose files may be read, with everything inside them. Folders that do not exist are
    /// ignored.
    std::vector<std::string> readableFolders;
};

/// Restricts the process to the rules, for the rest of its life. Afterwards the process:
///
/// - reads and writes the descriptors that are open, and opens no file except to read those of the readable
///   folders (Landlock);
/// - opens no socket, starts no process, and accesses no other process: the system ends it with SIGSYS when
///   it tries (seccomp). All other system calls that reading a document does not need fail with EPERM.
/// - has limited memory and processor time, and leaves no core file.
///
/// Must be called while the process has one thread. Where the kernel has no Landlock or no seccomp, the other
/// restrictions apply.
void enterSandbox(const SandboxRules &rules);

/// Returns the folders in which the system and the user keep fonts, and the settings and caches of
/// fontconfig. Text in a font that the document does not embed is drawn with these fonts, on paper too.
std::vector<std::string> fontFolders();

} // namespace sandbox
} // namespace programs
