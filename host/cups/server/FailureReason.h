// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

#include <QByteArray>
#include <QString>

namespace host {

/// Why no connection to the server on the port can be made, in the system's words and the user's language.
/// To be called right after httpConnect2() has failed, which reports "Host is down" for whatever the system
/// reports. For tasks in the background: connects once more, for a second at most for each address.
QString connectionFailureReason(const QByteArray &server, int port);

/// What a print server means by a status of HTTP other than success, in the user's language where libcups's
/// words do not say it.
QString statusReason(http_status_t status);

} // namespace host
