// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The lp(1) command that prints the same job, as shell words, quoted where needed.
struct LpCommand {
    /// The command line, to be copied into a terminal.
    QString line;
    /// The names of options that lp would send differently, since its syntax cannot express them; usually
    /// empty. Contains "document-format" if a PDF is sent that was converted from the named document,
    /// and "print-scaling" if its pages are laid out before it is sent.
    QStringList differences;

    /// Returns the differences as a sentence without a full stop; absent if there are none.
    std::optional<QString> differencesText() const;
};

/// Returns the command for the job on the server.
LpCommand lpCommand(const CupsServer &server, const JobTicket &ticket);

/// Quotes the word for a POSIX shell, if needed.
QString shellWord(const QString &word);

} // namespace jobs
} // namespace cups
} // namespace host
