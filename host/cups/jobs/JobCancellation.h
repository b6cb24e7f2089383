// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

namespace host {

/// Cancels a waiting or printing job (IPP Cancel-Job). Returns no value, or why it cannot be canceled. For
/// background tasks.
std::optional<CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                   BackgroundTask &task);

} // namespace host
