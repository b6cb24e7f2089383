// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CupsConnection.h"
#include "Destination.h"

namespace host {

/// Has the server make a queue for a printer that was discovered on the network; nothing to do for all
/// others. For tasks in the background. Nothing, or why there is no queue.
std::optional<CupsError> ensureQueue(CupsConnection &connection, const Destination &destination);

} // namespace host
