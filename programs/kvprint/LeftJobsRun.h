// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <host/cups/jobs/LeftJob.h>

namespace programs {
inline namespace kvprint {

/// What kvprint without a window does about jobs that killed programs have left on print servers.
class LeftJobsRun {
public:
    /// Both are borrowed.
    LeftJobsRun(const CommandLine &command, const Console &console);

    /// Prints every job that is left, and by which options it is canceled or released. Asks no server.
    void tell() const;
    /// Cancels or releases the job that the command line names; the server asks for passwords.
    ExitStatus settle(const host::CupsServer &server) const;

private:
    host::JobJournal::Left parseLeft() const;
    /// The job that is meant; nothing, with the reason printed, when there is none or more than one.
    std::optional<host::JobRecord> meant() const;

    const CommandLine &m_command;
    const Console &m_console;
};

} // namespace kvprint
} // namespace programs
