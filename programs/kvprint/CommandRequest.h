// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"

#include <host/cups/server/CupsServer.h>
#include <host/setup/PrinterSetup.h>

namespace programs {
inline namespace kvprint {

// The requests of the command line in the types of the rooms that carry them out.

/// Returns the requested print server, without handlers for passwords and certificates.
host::CupsServer cupsServer(const CommandLine &command);
/// Returns what is requested of the printer, including the mail after the job; PPD texts are in the user's
/// language.
host::SetupRequest setupRequest(const CommandLine &command);
/// Returns where the panel is loaded from.
host::PanelSource panelSource(const CommandLine &command);

} // namespace kvprint
} // namespace programs
