// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHostAddress>
#include <QNetworkInterface>

#include <gtest/gtest.h>

namespace test_support {

/// An address of this machine on a network: a server that listens on it is reached as one on another machine
/// is, and nothing leaves this machine. Where there is none, the address is empty and the test fails,
/// or in SetUpTestSuite() the suite, without running its tests.
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
