// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

#include <QByteArray>
#include <QString>

namespace host {
inline namespace cups {
inline namespace server {

/// Returns why a connection to the server on the port cannot be made: the system's message, in the user's
/// language. Must be called directly after httpConnect2() has failed, which reports "Host is down" for every
/// error of the system. For background tasks: connects again, for at most one second per address.
QString connectionFailureReason(const QByteArray &server, int port);

/// Returns what a print server means by an HTTP status other than success: libcups's message, or a message in
/// the user's language where libcups's does not describe the cause.
QString statusReason(http_status_t status);

} // namespace server
} // namespace cups
} // namespace host
