// SPDX-License-Identifier: Apache-2.0
#include "MailRecipient.h"

#include <host/cups/server/HostLookup.h>

#include <QSysInfo>

#include <cups/cups.h>

#include <chrono>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

/// A machine that knows its own name responds much sooner.
constexpr std::chrono::milliseconds timeout{1000};

QByteArray fullHostName()
{
    // As httpGetHostname(), which cannot be interrupted.
    QByteArray name = QSysInfo::machineHostName().toUtf8();
    if (!name.contains('.')) {
        const std::shared_ptr<const HostLookup::Answer> found = HostLookup::find(name, timeout);
        if (found)
            name = found->canonicalName().value_or(name);
    }
    // The final dot keeps a name of mDNS from being completed with the network's domain.
    return name.endsWith(".local") ? name + '.' : name;
}

} // namespace

QByteArray mailRecipient(const std::optional<QString> &user)
{
    const QByteArray name = user ? user->toUtf8() : QByteArray(cupsUser());
    return "mailto:" + name + '@' + fullHostName();
}

} // namespace jobs
} // namespace cups
} // namespace host
