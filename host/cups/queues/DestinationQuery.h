// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsConnection.h>

namespace host {

/// All queues and classes of the server with the user's instances of them, in the server's order; the
/// default one is marked. For tasks in the background.
///
/// One request, on the task's connection. cupsEnumDests() would take one of its own, which nothing could
/// interrupt, and ask for the default separately.
Result<std::vector<Destination>, CupsError> queryDestinations(CupsConnection &connection);

/// One queue as it is now, with the options of the instance.
Result<Destination, CupsError> queryDestination(CupsConnection &connection, const QString &queue,
                                                const std::optional<QString> &instance);

/// Looks for printers on the network, until the time is over or the task is cancelled, and hands over each as
/// soon as it is found. Asks no server. For tasks in the background.
void discoverDestinations(BackgroundTask &task, std::chrono::milliseconds time,
                          const std::function<void(const Destination &)> &found);

} // namespace host
