// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <host/setup/SetupJob.h>

namespace dialog {
inline namespace job {
class QueueSender;
} // namespace job
} // namespace dialog

namespace programs {
inline namespace kvprint {

/// The checks that a run of the command line makes before it prints, and their messages on the console: the
/// same for queues and for PPD files, with and without a window.
class CommandChecks {
public:
    /// Both are borrowed.
    CommandChecks(const CommandLine &command, const Console &console);

    /// Returns whether the printer has all requested choices, or --force is given. Reports the choices that
    /// it does not have, and a panel that cannot be shown.
    bool accepts(const host::PrinterSetup &setup) const;
    /// Returns whether the job for that printer may be sent without a question. Reports a panel that does
    /// not allow printing, requested choices that the panel's rules have replaced, and conflicts with their
    /// remedy.
    bool accepts(const host::Ticket &ticket, const host::PrinterSetup &setup) const;
    /// Prints the line that identifies the sent job to scripts, unless the run is quiet.
    void printRequestId(const dialog::QueueSender &sender) const;
    /// Returns the exit status of a run: a job that was printed without one of its panels has a status of its
    /// own. Prints the errors of panels that have occurred since they were loaded.
    ExitStatus statusOf(ExitStatus status, const host::PrinterSetup &setup) const;

private:
    QString errorText(const host::ChoiceError &error, const host::PrinterSetup &setup) const;
    void reportReplaced(const host::PrinterSetup &setup) const;

    const CommandLine &m_command;
    const Console &m_console;
};

} // namespace kvprint
} // namespace programs
