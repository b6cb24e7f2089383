// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

namespace host {

/// The number of the job in the queue that was created with this identifier ("urn:uuid:...") by the
/// connection's user and is not over; nothing when there is none. Names do not tell jobs apart, and a server
/// that lost its records gives numbers once more. For tasks in the background.
Result<std::optional<int>, CupsError> findJob(CupsConnection &connection, const QString &queue,
                                              const QByteArray &uuid);

} // namespace host
