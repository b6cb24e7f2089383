// SPDX-License-Identifier: Apache-2.0
#include "CupsServer.h"

#include <cups/cups.h>

namespace host {
inline namespace cups {
inline namespace server {

QString CupsServer::displayName() const
{
    if (address && !address->startsWith(u'/')) {
        // "/version=1.1" may follow the address, for old servers.
        const QString host = address->section(u'/', 0, 0);
        const bool hasPort = host.endsWith(u']') ? false : host.contains(u':');
        return hasPort ? host : QStringLiteral("%1:%2").arg(host).arg(ippPort());
    }
    if (address)
        return *address;
    const QString name = QString::fromUtf8(cupsServer());
    return name.startsWith(u'/') ? name : QStringLiteral("%1:%2").arg(name).arg(ippPort());
}

void CupsServer::resetRefusals() const
{
    passwords->resetRefusal();
    trust->resetRefusals();
}

} // namespace server
} // namespace cups
} // namespace host
