// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/Result.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace dialog {

enum class UsageProblem {
    HelpWanted,    ///< the message is the help text
    VersionWanted, ///< the message is the version
    Wrong,         ///< the message says what is wrong
};
using UsageError = host::Failure<UsageProblem>;

/// The statuses with which kvprint ends.
enum class ExitStatus {
    Printed = 0,
    Failed = 1,
    WrongUsage = 2,
    PrintedWithoutPanel = 3,
    Cancelled = 4,
};

/// What kvprint was asked to do.
struct CommandLine {
    QString ppd;
    QString document;
    /// The paper's name in the PPD, byte for byte.
    std::optional<QByteArray> paper;
    std::optional<QString> bundle;
    std::optional<QString> output;
    std::optional<QString> screenshot;
    /// Print at once, as a person would who opens the dialog and presses Print.
    bool noDialog = false;

    /// Reads the arguments, the program's name first.
    static host::Result<CommandLine, UsageError> parse(const QStringList &arguments);
};

} // namespace dialog
