// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Console.h"

#include <host/setup/PrinterSetup.h>

namespace dialog {

/// Tells which of the wishes the panel's rules have changed.
void tellChangesByPanel(const Console &console, const host::PrinterSetup &setup,
                        const std::vector<host::JobChoice> &wishes);

/// Tells the conflicts of what is chosen and what would end them; answers whether there are any.
bool tellConflicts(const Console &console, const host::PrinterSetup &setup);

} // namespace dialog
