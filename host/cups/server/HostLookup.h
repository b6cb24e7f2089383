// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

#include <netdb.h>

namespace host {
inline namespace cups {
inline namespace server {

/// Looks up the addresses of a host by its name, and does not wait longer than its caller: the system's
/// getaddrinfo() cannot be interrupted, and a silent name server holds it for half a minute.
///
/// Each lookup runs on a thread of its own, "kv-lookup", that calls getaddrinfo() only and that nothing waits
/// for. It blocks all signals and uses no memory that the end of the program destroys, so that it may still
/// wait when main() returns. All lookups of a name that run at the same time share one thread, so that there
/// are no more threads than names.
class HostLookup {
public:
    /// The result of a lookup.
    class Answer {
    public:
        /// Owns the result of getaddrinfo(); systemError is errno after EAI_SYSTEM.
        Answer(int error, int systemError, addrinfo *addresses);

        /// Returns the addresses, without ports; null if there are none. Owned by the answer.
        const addrinfo *addresses() const { return m_addresses.get(); }
        /// Returns the system's message about the error; absent if there are addresses.
        std::optional<QString> error() const;
        /// Returns the name under which the host is known; absent if it is not known.
        std::optional<QByteArray> canonicalName() const;

    private:
        struct Free {
            void operator()(addrinfo *list) const { freeaddrinfo(list); }
        };

        int m_error;
        int m_systemError;
        std::unique_ptr<addrinfo, Free> m_addresses;
    };

    /// Returns the answer for the name; null if there is none within the time, or until a stop is requested.
    static std::shared_ptr<const Answer> find(const QByteArray &name, std::chrono::milliseconds time,
                                              const std::stop_token &stop = {});

private:
    class Lookup;
};

} // namespace server
} // namespace cups
} // namespace host
