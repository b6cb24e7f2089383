// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ParseResult.h"

namespace programs {
inline namespace kvprint {

struct CommandLine;

// The options of lp for a job, with the same meaning. Each function stores the value in the command, or
// returns the reason why the value is not valid and leaves the command unchanged.

/// -n: 1 to host::maxCopies.
ParseResult parseCopies(CommandLine &command, const QString &value);
/// -q: 1 (last) to 100 (first).
ParseResult parsePriority(CommandLine &command, const QString &value);
/// -H: "hold", "immediate", "HH:MM" in UTC and so on.
ParseResult parseHold(CommandLine &command, const QString &value);
/// -P: "1-3,5,8-".
ParseResult parsePages(CommandLine &command, const QString &value);
/// -d: "queue" or "queue/instance".
ParseResult parseDestination(CommandLine &command, const QString &value);
/// -i: "12" or "queue-12".
ParseResult parseJob(CommandLine &command, const QString &value);
/// -o: "NAME=VALUE NAME NoNAME", quoted as in libcups. Options with the meaning of a letter are stored like
/// the letter.
ParseResult parseOptions(CommandLine &command, const QString &value);

/// Returns whether the value of -H requires a job that was sent before: "resume" and "restart".
bool holdNeedsJob(const QString &hold);

} // namespace kvprint
} // namespace programs
