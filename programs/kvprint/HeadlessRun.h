// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"
#include "SignalWatch.h"

#include <host/cups/server/CupsServer.h>
#include <host/setup/SetupJob.h>
#include <host/setup/SetupKeeper.h>

namespace programs {
inline namespace kvprint {

/// Printing on a queue without a dialog, or telling what would be printed. The panel works all the same,
/// without being seen, so that its rules hold for what the command line asks for.
class HeadlessRun {
public:
    HeadlessRun(const CommandLine &command, const Console &console, host::CupsServer server,
                std::shared_ptr<const host::LabelDocument> document);

    ExitStatus run();

private:
    /// Waits for the server; null, with the reason told, when there is nothing to print on.
    host::PrinterSetup *waitForSetup(host::QueueSession &session, host::SetupKeeper &keeper);
    bool canPrintDocument() const;
    std::optional<host::JobRequest> makeJobRequest(const host::PrinterSetup &setup) const;
    /// The picture of the dialog that would have been shown, when one is wanted; false when it cannot be
    /// saved.
    bool takeScreenshot(host::SetupKeeper &keeper) const;
    /// What the signal makes of the run; tells it.
    ExitStatus endedBy(int signal) const;
    ExitStatus finish(const host::PrinterSetup &setup, const host::Ticket &ticket);
    ExitStatus send(const host::Ticket &ticket);

    const CommandLine &m_command;
    const Console &m_console;
    host::CupsServer m_server;
    std::shared_ptr<const host::LabelDocument> m_document;
    /// Half a job must not be left on the server, nor files among the system's temporary ones.
    SignalWatch m_signals;
};

} // namespace kvprint
} // namespace programs
