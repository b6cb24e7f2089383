// SPDX-License-Identifier: Apache-2.0
#include "FuzzServer.h"

#include "FuzzFile.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

FuzzServer::FuzzServer()
    : m_address(fuzzFolder() + QStringLiteral("/server"))
    , m_socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(m_address);
    std::copy_n(path.constData(),
                std::min<std::size_t>(static_cast<std::size_t>(path.size()), sizeof name.sun_path - 1),
                static_cast<char *>(name.sun_path));
    if (m_socket < 0 || bind(m_socket, reinterpret_cast<const sockaddr *>(&name), sizeof name) != 0 ||
        listen(m_socket, SOMAXCONN) != 0)
        qFatal("%s: %s", path.constData(), qPrintable(qt_error_string()));
    m_thread = std::thread([this] { serve(); });
}

FuzzServer::~FuzzServer()
{
    shutdown(m_socket, SHUT_RDWR);
    m_thread.join();
    close(m_socket);
}

void FuzzServer::setAnswer(const QByteArray &bytes)
{
    const std::scoped_lock lock(m_mutex);
    m_answer = bytes;
}

void FuzzServer::serve()
{
    // libFuzzer's alarm, each second, would interrupt waiting for a connection.
    sigset_t all{};
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
    for (;;) {
        const int connection = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            return;
        answer(connection);
        close(connection);
    }
}

void FuzzServer::answer(int connection)
{
    std::array<char, 4096> request{};
    if (read(connection, request.data(), request.size()) <= 0)
        return;
    QByteArray left;
    {
        const std::scoped_lock lock(m_mutex);
        left = m_answer;
    }
    while (!left.isEmpty()) {
        const ssize_t sent =
            send(connection, left.constData(), static_cast<std::size_t>(left.size()), MSG_NOSIGNAL);
        if (sent <= 0)
            return;
        left.remove(0, sent);
    }
    shutdown(connection, SHUT_WR);
    // Closed with bytes unread, the connection would be reset, and the answer with it.
    while (read(connection, request.data(), request.size()) > 0) {
    }
}
