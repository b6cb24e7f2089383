// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace programs {
inline namespace sandbox {

/// Restricts the process to reading the files of the folders (Landlock). Descriptors that are open stay
/// usable. Does nothing where the kernel has no Landlock.
void allowReadingOnly(const std::vector<std::string> &folders);

} // namespace sandbox
} // namespace programs
