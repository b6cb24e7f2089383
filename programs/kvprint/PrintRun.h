// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <dialog/window/PrintDialog.h>

namespace dialog {
inline namespace job {
class QueueSender;
class VirtualSender;
} // namespace job
} // namespace dialog

namespace programs {
inline namespace kvprint {

/// A run of kvprint: opens the documents and the printer, shows the dialog unless it is not requested, and
/// prints.
class PrintRun {
public:
    /// Creates a run of the command with its output.
    PrintRun(CommandLine command, Console console);

    /// Runs until the last message. Without a dialog, it waits only for the print server.
    ExitStatus run();

private:
    std::unique_ptr<host::LabelDocument> openDocument();
    ExitStatus runVirtual();
    ExitStatus runOnQueue();
    /// Returns the printer of a PPD file. Returns null and reports the reason if it cannot be used as
    /// requested.
    std::unique_ptr<host::PrinterSetup> openPrinter();
    ExitStatus showVirtual(dialog::PrintDialog &dialog, dialog::VirtualSender &sender,
                           const host::PrinterSetup &setup);
    /// Returns whether the job may be printed without a dialog. Reports the reason otherwise.
    bool canPrintAtOnce(dialog::PrintDialog &dialog, const host::PrinterSetup &setup) const;
    ExitStatus follow(dialog::PrintDialog &dialog, const dialog::QueueSender &sender,
                      const host::CupsServer &server);
    dialog::RequestedSettings requestedSettings() const;
    bool takeScreenshot(dialog::PrintDialog &dialog);
    void printSummary(const std::vector<host::SummarySection> &summary);

    CommandLine m_command;
    Console m_console;
};

} // namespace kvprint
} // namespace programs
