// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace queues {

/// Ensures that the server has a queue for a discovered printer: has it created if needed and waits until it
/// can be used. Does nothing for other destinations. The server removes such a queue after a minute without
/// use, so this is called before every use. For the connection's background task. Returns no value, or why
/// there is no queue.
///
/// time is the maximum for finding the printer and reading its capabilities; if it is absent, the server's
/// timeout applies.
Result<void, CupsError> ensureQueue(CupsConnection &connection, const Destination &destination,
                                    BackgroundTask &task,
                                    const std::optional<std::chrono::milliseconds> &time = std::nullopt);

} // namespace queues
} // namespace cups
} // namespace host
