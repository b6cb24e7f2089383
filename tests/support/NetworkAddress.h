// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHostAddress>
#include <QNetworkInterface>

#include <optional>

namespace test_support {

/// An address of this machine on a network: a server that listens on it is reached as one on another machine
/// is, and nothing leaves this machine. Nothing where there is no network.
inline std::optional<QString> networkAddress()
{
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback())
            return address.toString();
    }
    return std::nullopt;
}

/// What a test says that needs one.
constexpr const char *noNetwork = "this machine has no address but the loopback interface's";

} // namespace test_support
