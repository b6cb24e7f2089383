// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"

#include <host/cups/server/CupsServer.h>
#include <host/setup/PrinterSetup.h>

namespace programs {
inline namespace kvprint {

// What the command line asks for, as the parts of a run take it.

/// The print server to talk to, without a way to ask for passwords.
host::CupsServer cupsServer(const CommandLine &command);
/// What is wanted of the printer, a mail when the job is over included; PPD texts in the user's language.
host::SetupRequest setupRequest(const CommandLine &command);
/// Where the panel is looked for.
host::PanelSource panelSource(const CommandLine &command);

} // namespace kvprint
} // namespace programs
