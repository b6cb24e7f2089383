// SPDX-License-Identifier: Apache-2.0
#include "ServerProxy.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace bench {

namespace {

/// The interval at which the threads check whether to end.
constexpr int stopMilliseconds = 100;

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

/// Forwards the available data; false at the end of the connection.
bool pass(int from, int to)
{
    std::array<char, 65536> buffer{};
    const ssize_t count = recv(from, buffer.data(), buffer.size(), 0);
    if (count <= 0)
        return false;
    for (ssize_t sent = 0; sent < count;) {
        const ssize_t now = send(to, buffer.data() + sent, static_cast<size_t>(count - sent), MSG_NOSIGNAL);
        if (now <= 0)
            return false;
        sent += now;
    }
    return true;
}

bool isReadable(const pollfd &socket)
{
    return (socket.revents & (POLLIN | POLLHUP | POLLERR)) != 0;
}

} // namespace

ServerProxy::ServerProxy(quint16 realPort, std::chrono::milliseconds lateness)
    : m_realPort(realPort)
    , m_lateness(lateness)
    , m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof address;
    if (bind(m_listener, reinterpret_cast<sockaddr *>(&address), length) != 0 ||
        ::listen(m_listener, SOMAXCONN) != 0 ||
        getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &length) != 0)
        qFatal("no port for a proxy");
    m_port = ntohs(address.sin_port);
    m_thread = std::jthread([this](const std::stop_token &stop) { listen(stop); });
}

ServerProxy::~ServerProxy()
{
    m_thread.request_stop();
    m_thread.join();
    m_connections.clear();
    close(m_listener);
}

void ServerProxy::listen(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        pollfd listener{m_listener, POLLIN, 0};
        if (poll(&listener, 1, stopMilliseconds) <= 0)
            continue;
        const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0)
            continue;
        m_connections.emplace_back([this, client, manner = m_manner.load()](const std::stop_token &ending) {
            serve(ending, client, manner);
        });
    }
}

bool ServerProxy::passAnswer(int server, int client, bool &isAsked) const
{
    if (isAsked)
        std::this_thread::sleep_for(m_lateness);
    isAsked = false;
    return pass(server, client);
}

void ServerProxy::serve(const std::stop_token &stop, int client, Manner manner) const
{
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(m_realPort);
    const bool isSilent = manner == Manner::Silent;
    bool isOpen =
        isSilent || connect(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    bool isAsked = false;
    while (isOpen && !stop.stop_requested()) {
        pollfd sockets[] = {{client, POLLIN, 0}, {isSilent ? -1 : server, POLLIN, 0}};
        if (poll(sockets, std::size(sockets), stopMilliseconds) <= 0)
            continue;
        if (isReadable(sockets[0])) {
            std::array<char, 4096> unheard{};
            isOpen = isSilent ? recv(client, unheard.data(), unheard.size(), 0) > 0 : pass(client, server);
            isAsked = manner == Manner::Slow;
        }
        if (isOpen && isReadable(sockets[1]))
            isOpen = passAnswer(server, client, isAsked);
    }
    close(server);
    close(client);
}

} // namespace bench
