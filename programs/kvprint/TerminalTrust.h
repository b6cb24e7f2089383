// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

namespace programs {
inline namespace kvprint {

/// Asks on the terminal about the safety of a connection, for every request, and refuses it where there is no
/// terminal. It waits for the answer and lets no other events come in meanwhile: for runs without windows.
host::TrustHandler askTrustOnTerminal();

} // namespace kvprint
} // namespace programs
