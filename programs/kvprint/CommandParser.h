// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"

#include <host/base/Result.h>

namespace programs {
inline namespace kvprint {

/// Why the program does not run: the arguments are wrong, or request only a message.
enum class UsageErrorKind {
    HelpRequested,    ///< the message is the help text
    VersionRequested, ///< the message is the version
    Wrong,            ///< the message says what is wrong
};
using UsageError = host::Failure<UsageErrorKind>;

/// Parses the arguments, of which the first is the program's name. Needs no application object.
host::Result<CommandLine, UsageError> parseCommandLine(const QStringList &arguments);

/// Checks whether standard input can be printed if the command names no document: if it is a terminal, the
/// program would seem to hang.
host::Result<void, UsageError> checkInput(const CommandLine &command, bool inputIsTerminal);

} // namespace kvprint
} // namespace programs
