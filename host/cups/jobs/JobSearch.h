// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Returns the number of the job in the queue that the connection's user has created with this UUID
/// ("urn:uuid:...") and that is not over; no value if there is none. Names are not unique, and a server that
/// has lost its records assigns numbers again. For background tasks.
Result<std::optional<int>, CupsError> findJob(CupsConnection &connection, const QString &queue,
                                              const QByteArray &uuid);

} // namespace jobs
} // namespace cups
} // namespace host
