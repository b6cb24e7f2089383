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

/// One run of kvprint: opens what was asked for, shows the dialog or does without, and prints.
class PrintRun {
public:
    PrintRun(CommandLine command, Console console);

    /// Everything from the files to the last message. Without a dialog it does not wait for anybody but the
    /// print server.
    ExitStatus run();

private:
    std::unique_ptr<host::LabelDocument> openDocument();
    ExitStatus runVirtual();
    ExitStatus runOnQueue();
    /// The printer of a PPD file; null, with the reason told, when it cannot be used as asked.
    std::unique_ptr<host::PrinterSetup> openPrinter();
    ExitStatus showVirtual(dialog::PrintDialog &dialog, dialog::VirtualSender &sender,
                           const host::PrinterSetup &setup);
    /// Whether what would be printed without a dialog may be; tells what is wrong with it.
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
