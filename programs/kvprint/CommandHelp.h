// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace programs {
inline namespace kvprint {

/// Returns the help text in the user's language: usage, all options, exit statuses, in lines of up to 80
/// columns.
QString commandHelp();

/// Returns the text of --version: name and version, and what the kernel lacks to confine the processes that
/// read documents.
QString versionText();

} // namespace kvprint
} // namespace programs
