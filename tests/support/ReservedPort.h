// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace test_support {

/// A port of the loopback interface that is reserved for one server for the lifetime of the object: the
/// system assigns it to no other program and no outgoing connection, even while the server is not running.
/// Connections are refused until a server listens that allows the address to be reused, as cupsd does.
class ReservedPort {
public:
    /// Fails the test when the system has no port left.
    ReservedPort();
    ~ReservedPort();
    ReservedPort(const ReservedPort &) = delete;
    ReservedPort &operator=(const ReservedPort &) = delete;

    quint16 number() const { return m_number; }
    /// "127.0.0.1:PORT"
    QString address() const;

private:
    int m_socket = -1;
    quint16 m_number = 0;
};

} // namespace test_support
