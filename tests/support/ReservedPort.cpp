// SPDX-License-Identifier: Apache-2.0
#include "ReservedPort.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace test_support {

ReservedPort::ReservedPort()
    : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const int yes = 1;
    EXPECT_EQ(setsockopt(m_socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes), 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    socklen_t length = sizeof address;
    // The socket is bound but never listens: a server that allows reuse can listen, and the number stays
    // reserved.
    EXPECT_EQ(bind(m_socket, generic, length), 0);
    EXPECT_EQ(getsockname(m_socket, generic, &length), 0);
    m_number = ntohs(address.sin_port);
}

ReservedPort::~ReservedPort()
{
    close(m_socket);
}

QString ReservedPort::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_number);
}

} // namespace test_support
