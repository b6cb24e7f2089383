// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace queues {

/// Returns all queues and classes of the server, with the user's instances of them, in the server's order;
/// the default destination is marked. For background tasks.
///
/// Sends one request over the task's connection. cupsEnumDests() would open its own connection, which cannot
/// be interrupted, and request the default separately.
Result<std::vector<Destination>, CupsError> queryDestinations(CupsConnection &connection);

/// Returns the current state of a queue, with the options of the instance. For background tasks.
Result<Destination, CupsError> queryDestination(CupsConnection &connection, const QString &queue,
                                                const std::optional<QString> &instance);

/// Discovers printers on the network until the time has passed or the task is canceled. Calls the function
/// found for each printer as soon as it is found. Uses no print server. For background tasks.
void discoverDestinations(BackgroundTask &task, std::chrono::milliseconds time,
                          const std::function<void(const Destination &)> &found);

} // namespace queues
} // namespace cups
} // namespace host
