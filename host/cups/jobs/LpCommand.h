// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsServer.h>

namespace host {

/// The lp(1) command that prints the same job: words for a shell, quoted where needed.
struct LpCommand {
    /// To be copied into a terminal.
    QString line;
    /// The names of options that lp would send otherwise, since its words cannot say them; mostly empty.
    /// "document-format" when a PDF is sent that was made of the named document.
    QStringList differences;

    /// The differences as a sentence, without its full stop; empty without any.
    QString differencesInWords() const;
};

LpCommand lpCommand(const CupsServer &server, const JobTicket &ticket);

/// The word as a POSIX shell reads it back.
QString shellWord(const QString &word);

} // namespace host
