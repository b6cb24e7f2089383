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

/// Prints on a queue without a dialog, or reports what would be printed. The panel is loaded without being
/// shown, so that its rules apply to the options of the command line.
class HeadlessRun {
public:
    /// Command and console are borrowed.
    HeadlessRun(const CommandLine &command, const Console &console, host::CupsServer server,
                std::shared_ptr<const host::LabelDocument> document);

    /// Runs the task and returns the exit status. Errors have been reported.
    ExitStatus run();

private:
    /// Waits for the server. Returns null and reports the reason if there is no printer to print on.
    host::PrinterSetup *waitForSetup(host::QueueSession &session, host::SetupKeeper &keeper);
    bool canPrintDocument() const;
    std::optional<host::JobRequest> makeJobRequest(const host::PrinterSetup &setup) const;
    /// Saves the picture of the dialog, if one is requested. Returns false and reports the error if it
    /// cannot be saved.
    bool takeScreenshot(host::SetupKeeper &keeper) const;
    /// Reports that the signal ended the run, and returns its status.
    ExitStatus endedBy(int signal) const;
    ExitStatus finish(const host::PrinterSetup &setup, const host::Ticket &ticket);
    ExitStatus send(const host::Ticket &ticket);

    const CommandLine &m_command;
    const Console &m_console;
    host::CupsServer m_server;
    std::shared_ptr<const host::LabelDocument> m_document;
    /// A signal must leave neither an incomplete job on the server nor temporary files.
    SignalWatch m_signals;
};

} // namespace kvprint
} // namespace programs
