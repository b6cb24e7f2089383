// SPDX-License-Identifier: Apache-2.0
#include "ServerAddresses.h"

#include "HostLookup.h"

#include <cstring>
#include <memory>

#include <netinet/in.h>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

struct AddressListFree {
    void operator()(http_addrlist_t *list) const { httpAddrFreeList(list); }
};

/// Returns whether the host is a path, this machine, or a numeric address: libcups asks no name server.
bool isKnownWithoutLookup(const QByteArray &host)
{
    const bool isBracketed = host.startsWith('[') && host.contains(':');
    if (host.startsWith('/') || isBracketed || qstricmp(host.constData(), "localhost") == 0)
        return true;
    addrinfo hints = {};
    hints.ai_flags = AI_NUMERICHOST;
    addrinfo *found = nullptr;
    const bool isNumeric = getaddrinfo(host.constData(), nullptr, &hints, &found) == 0;
    if (isNumeric)
        freeaddrinfo(found);
    return isNumeric;
}

std::vector<http_addr_t> addressesFromLibcups(const QByteArray &host, int port)
{
    const std::unique_ptr<http_addrlist_t, AddressListFree> list(
        httpAddrGetList(host.constData(), AF_UNSPEC, QByteArray::number(port).constData()));
    std::vector<http_addr_t> addresses;
    for (const http_addrlist_t *each = list.get(); each; each = each->next)
        addresses.push_back(each->addr);
    return addresses;
}

std::vector<http_addr_t> withPort(const addrinfo *found, int port)
{
    std::vector<http_addr_t> addresses;
    for (const addrinfo *each = found; each; each = each->ai_next) {
        http_addr_t address = {};
        std::memcpy(&address, each->ai_addr, std::min<std::size_t>(each->ai_addrlen, sizeof address));
        if (each->ai_family == AF_INET)
            address.ipv4.sin_port = htons(static_cast<in_port_t>(port));
        else if (each->ai_family == AF_INET6)
            address.ipv6.sin6_port = htons(static_cast<in_port_t>(port));
        addresses.push_back(address);
    }
    return addresses;
}

} // namespace

ServerAddresses::ServerAddresses(const std::vector<http_addr_t> &addresses)
{
    for (const http_addr_t &each : addresses)
        m_nodes.push_back({nullptr, each});
    for (std::size_t i = 1; i < m_nodes.size(); ++i)
        m_nodes[i - 1].next = &m_nodes[i];
}

Result<ServerAddresses, ServerAddresses::Error> ServerAddresses::find(const QByteArray &host, int port,
                                                                      std::chrono::milliseconds time,
                                                                      const BackgroundTask &task)
{
    if (isKnownWithoutLookup(host)) {
        ServerAddresses found(addressesFromLibcups(host, port));
        if (!found.list())
            return Error{ErrorKind::Unknown, QString::fromLocal8Bit(cupsLastErrorString())};
        return found;
    }
    const std::shared_ptr<const HostLookup::Answer> answer = HostLookup::find(host, time, task.stopToken());
    if (!answer)
        return Error{ErrorKind::Silent, {}};
    if (!answer->addresses())
        return Error{ErrorKind::Unknown, answer->error().value_or(QString())};
    return ServerAddresses(withPort(answer->addresses(), port));
}

} // namespace server
} // namespace cups
} // namespace host
