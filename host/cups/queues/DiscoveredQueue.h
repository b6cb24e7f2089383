// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsConnection.h>

namespace host {

/// Has the server make a queue for a printer that was discovered on the network, and waits until it is ready
/// to be used; nothing to do for all others, and for one that has its queue already. The server drops such a
/// queue when nobody has used it for a minute, so this is asked for before every use. For the connection's
/// task in the background. Nothing, or why there is no queue.
///
/// The printer has as long as the time to be found and asked what it can do; without one, as long as the
/// server may be silent.
std::optional<CupsError> ensureQueue(CupsConnection &connection, const Destination &destination,
                                     BackgroundTask &task,
                                     const std::optional<std::chrono::milliseconds> &time = std::nullopt);

} // namespace host
