// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

namespace programs {
inline namespace kvprint {

/// Returns a handler that asks on the terminal for each request whether to trust a connection, and rejects
/// it without a terminal. It processes no events while it waits: for runs without windows.
host::TrustHandler askTrustOnTerminal();

} // namespace kvprint
} // namespace programs
