// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundTask.h"

#include <host/base/Result.h>

#include <cups/cups.h>

#include <QByteArray>

#include <vector>

namespace host {
inline namespace cups {
inline namespace server {

/// The addresses of a print server, in libcups's form. libcups finds them itself where no name server is
/// asked; it would wait for a name server without noticing that the task is canceled.
class ServerAddresses {
public:
    /// Why there are no addresses.
    enum class ErrorKind {
        Unknown, ///< there is no such host
        Silent,  ///< no name server responds in time, or the task is canceled
    };
    /// An error with the system's message, which is empty for ErrorKind::Silent.
    using Error = Failure<ErrorKind>;

    /// Returns the addresses of the host: a name, a numeric address, or the path of a local socket. Waits for
    /// a name server for the given time at most. For background tasks.
    static Result<ServerAddresses, Error> find(const QByteArray &host, int port,
                                               std::chrono::milliseconds time, const BackgroundTask &task);

    ServerAddresses() = default;
    ServerAddresses(ServerAddresses &&) = default;
    ServerAddresses &operator=(ServerAddresses &&) = default;

    /// Returns the list; null if it is empty. Owned by this object; libcups copies it.
    http_addrlist_t *list() { return m_nodes.empty() ? nullptr : m_nodes.data(); }

private:
    explicit ServerAddresses(const std::vector<http_addr_t> &addresses);

    /// Linked in their order.
    std::vector<http_addrlist_t> m_nodes;
};

} // namespace server
} // namespace cups
} // namespace host
