// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Cancels a waiting or printing job (IPP Cancel-Job). For background tasks.
Result<void, CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                  BackgroundTask &task);

} // namespace jobs
} // namespace cups
} // namespace host
