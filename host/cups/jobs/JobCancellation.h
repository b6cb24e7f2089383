// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsConnection.h>

namespace host {

/// Cancels a job, waiting or printed (IPP Cancel-Job). Nothing, or why it cannot be canceled. For tasks in
/// the background.
std::optional<CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                   BackgroundTask &task);

} // namespace host
