// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "ErrorMessage.h"

#include <span>

namespace programs {
inline namespace kvprint {

/// One option of the command line: a row of the table that parser and help are made from.
struct CommandOption {
    /// What an option is about, beside its task.
    enum class Printer {
        Any,
        Queue,   ///< print servers: not together with a PPD file
        Virtual, ///< the virtual printer: only with a PPD file
    };

    /// lp's; 0 when there is none. Either a letter or a name is there.
    char letter;
    /// Without the dashes; null when there is none.
    const char *name;
    /// A name for the value in help and messages; null when the option takes none.
    const char *value;
    /// To be translated in the context dialog::CommandLine.
    const char *help;
    /// The tasks that it goes together with, a bit for each.
    unsigned tasks;
    Printer printer;
    /// Puts the option and its value where it belongs; null for those that end the reading at once.
    ErrorMessage (*take)(CommandLine &command, const QString &value);

    /// "-d" or "--ppd".
    QString spelling() const;
    bool goesWith(Task task) const;
    /// Whether it is the one that asks for the task.
    bool asksFor(Task task) const;
};

/// All options, in the order of the help text.
std::span<const CommandOption> commandOptions();
/// Null when there is none.
const CommandOption *findOption(QChar letter);
const CommandOption *findOption(QStringView name);

} // namespace kvprint
} // namespace programs
