// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsServer.h>

#include <chrono>

/// The server at "127.0.0.1:PORT", which is waited for longer than any test may last: a main thread that
/// waits for it while it withholds an answer never comes back, and the test fails.
inline host::CupsServer serverAt(const QString &address)
{
    host::CupsServer server;
    server.address = address;
    server.timeout = std::chrono::hours(1);
    return server;
}

/// The same for a server that never answers: it is found silent soon, on any machine.
inline host::CupsServer silentServerAt(const QString &address)
{
    host::CupsServer server = serverAt(address);
    server.timeout = std::chrono::milliseconds(300);
    return server;
}
