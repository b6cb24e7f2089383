// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "ParseResult.h"

#include <span>

namespace programs {
inline namespace kvprint {

/// An option of the command line: a row of the table for the parser and the help text.
struct CommandOption {
    /// The kind of printer to which an option applies.
    enum class Printer {
        Any,
        Queue,   ///< print servers: not together with a PPD file
        Virtual, ///< the virtual printer: only with a PPD file
    };

    /// The letter, as for lp; 0 if the option has only a name.
    char letter;
    /// The name without dashes; null if the option has only a letter.
    const char *name;
    /// The name of the value in help and messages; null if the option has no value.
    const char *value;
    /// The help text, untranslated; its context is programs::kvprint::CommandLine.
    const char *help;
    /// The tasks that allow the option, one bit each.
    unsigned tasks;
    Printer printer;
    /// Stores the option and its value in the command; null for options that end the parsing.
    ParseResult (*parse)(CommandLine &command, const QString &value);

    /// Returns the option as it is written: "-d" or "--ppd".
    QString spelling() const;
    bool goesWith(Task task) const;
    /// Returns whether the option selects the task.
    bool asksFor(Task task) const;
};

/// Returns all options in the order of the help text.
std::span<const CommandOption> commandOptions();
/// Returns the option with the letter or the name; null if there is none.
const CommandOption *findOption(QChar letter);
const CommandOption *findOption(QStringView name);

} // namespace kvprint
} // namespace programs
