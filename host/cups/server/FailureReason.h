// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundTask.h"

#include <cups/cups.h>

#include <QString>

namespace host {
inline namespace cups {
inline namespace server {

/// Returns why a connection to the addresses cannot be made: the system's message, in the user's language.
/// Must be called directly after httpReconnect2() has failed, which reports "Host is down" for every error of
/// the system. For background tasks: connects again, for at most one second per address, and no longer when
/// the task is canceled.
QString connectionFailureReason(http_addrlist_t *addresses, const BackgroundTask &task);

/// Returns what a print server means by an HTTP status other than success: libcups's message, or a message in
/// the user's language where libcups's does not describe the cause.
QString statusReason(http_status_t status);

} // namespace server
} // namespace cups
} // namespace host
