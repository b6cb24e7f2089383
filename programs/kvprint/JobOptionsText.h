// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ErrorMessage.h"

namespace programs {
inline namespace kvprint {

struct CommandLine;

// What lp's letters say of a job, with lp's meaning. Each function puts the value where it belongs in the
// command, or answers what is wrong with it and leaves the command as it was.

/// -n: 1 to host::maxCopies.
ErrorMessage parseCopies(CommandLine &command, const QString &value);
/// -q: 1 (last) to 100 (first).
ErrorMessage parsePriority(CommandLine &command, const QString &value);
/// -H: "hold", "immediate", "HH:MM" in UTC and so on.
ErrorMessage parseHold(CommandLine &command, const QString &value);
/// -P: "1-3,5,8-".
ErrorMessage parsePages(CommandLine &command, const QString &value);
/// -d: "queue" or "queue/instance".
ErrorMessage parseDestination(CommandLine &command, const QString &value);
/// -i: "12" or "queue-12".
ErrorMessage parseJob(CommandLine &command, const QString &value);
/// -o: "NAME=VALUE NAME NoNAME", quoted as libcups reads it. Options that mean the same as a letter go where
/// the letter goes.
ErrorMessage parseOptions(CommandLine &command, const QString &value);

/// Whether the value of -H is about a job that was sent before: "resume" and "restart".
bool holdNeedsJob(const QString &hold);

} // namespace kvprint
} // namespace programs
