// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <host/cups/CupsServer.h>

namespace dialog {

/// What kvprint does with a print server alone: telling its destinations, and changing a job that waits.
class ServerRun {
public:
    ServerRun(const CommandLine &command, const Console &console, host::CupsServer server);

    ExitStatus run();

private:
    ExitStatus tellDestinations();
    ExitStatus changeJob();

    const CommandLine &m_command;
    const Console &m_console;
    host::CupsServer m_server;
};

} // namespace dialog
