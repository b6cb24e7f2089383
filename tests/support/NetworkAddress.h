// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHostAddress>
#include <QNetworkInterface>

#include <gtest/gtest.h>

namespace test_support {

/// Returns an address of this machine on a network: clients reach a server that listens on it like one on
/// another machine, but no data leaves this machine. Without such an address, returns an empty string and
/// fails the test; in SetUpTestSuite(), fails the suite without running its tests.
inline QString networkAddress()
{
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback())
            return address.toString();
    }
    ADD_FAILURE()
        << "No network interface that is up has an IPv4 address, except the loopback interface. The "
           "test needs one to reach this machine as another machine.";
    return {};
}

} // namespace test_support
