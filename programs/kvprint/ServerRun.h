// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <host/cups/jobs/JobChange.h>
#include <host/printer/PpdFile.h>

#include <memory>

namespace programs {
inline namespace kvprint {

/// The tasks that need only a print server: lists its destinations, and changes a waiting job.
class ServerRun {
public:
    /// Command and console are borrowed.
    ServerRun(const CommandLine &command, const Console &console, host::CupsServer server);

    /// Runs the task and returns the exit status. Errors have been reported.
    ExitStatus run();

private:
    ExitStatus printDestinations();
    ExitStatus changeJob();
    /// Returns whether the job's printer has all options and choices of the change, or has no PPD and cannot
    /// be checked. Reports those that it does not have.
    bool printerHas(const host::JobChange &change);
    /// Returns the PPD of the job's queue; null if the queue has none.
    host::Result<std::shared_ptr<host::PpdFile>, host::CupsError> ppdOfJob(int jobId);

    const CommandLine &m_command;
    const Console &m_console;
    host::CupsServer m_server;
};

} // namespace kvprint
} // namespace programs
