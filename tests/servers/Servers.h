// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsServer.h>

#include <chrono>

/// The server at "127.0.0.1:PORT", with a timeout longer than any test may take: a main thread that waits for
/// a withheld answer does not return, and the test fails.
inline host::CupsServer serverAt(const QString &address)
{
    host::CupsServer server;
    server.address = address;
    server.timeout = std::chrono::hours(1);
    return server;
}

/// As serverAt(), for a server that never answers, with a short timeout.
inline host::CupsServer silentServerAt(const QString &address)
{
    host::CupsServer server = serverAt(address);
    server.timeout = std::chrono::milliseconds(300);
    return server;
}
