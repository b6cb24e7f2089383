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

/// What may keep a run of the command line from printing, and what it reports on the console: the same for
/// queues and for PPD files, with and without a window.
class CommandChecks {
public:
    /// Both are borrowed.
    CommandChecks(const CommandLine &command, const Console &console);

    /// Whether the printer can do what is requested, or is to do it by force. Reports what it cannot do, and
    /// a panel that cannot be shown.
    bool accepts(const host::PrinterSetup &setup) const;
    /// Whether the job, made for that printer, may be sent without asking. Reports a panel that refuses,
    /// requested choices that the panel's rules have replaced, and conflicts with their remedy.
    bool accepts(const host::Ticket &ticket, const host::PrinterSetup &setup) const;
    /// Prints the line by which scripts know the job that was sent, unless the run is quiet.
    void printRequestId(const dialog::QueueSender &sender) const;
    /// The status of a run that ended like this: a job that was printed without its panel has its own.
    static ExitStatus statusOf(ExitStatus status, const host::PrinterSetup &setup);

private:
    QString errorText(const host::ChoiceError &error, const host::PrinterSetup &setup) const;
    void reportReplaced(const host::PrinterSetup &setup) const;

    const CommandLine &m_command;
    const Console &m_console;
};

} // namespace kvprint
} // namespace programs
