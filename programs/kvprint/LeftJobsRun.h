// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <host/cups/jobs/LeftJob.h>

namespace programs {
inline namespace kvprint {

/// Reports, cancels and releases jobs that killed programs have left on print servers, without a window.
class LeftJobsRun {
public:
    /// Both are borrowed.
    LeftJobsRun(const CommandLine &command, const Console &console);

    /// Prints each job that is left, with the options that cancel or release it. Does not connect to a
    /// server.
    void report() const;
    /// Cancels or releases the job that the command line names. The server has the handler for passwords.
    ExitStatus settle(const host::CupsServer &server) const;

private:
    /// Reads the journals of the jobs and prints the errors of damaged ones.
    host::JobJournal::Left readLeft() const;
    /// Returns the job that the command line names; absent, with the reason printed, if there is none or
    /// more than one.
    std::optional<host::JobRecord> meant() const;

    const CommandLine &m_command;
    const Console &m_console;
};

} // namespace kvprint
} // namespace programs
