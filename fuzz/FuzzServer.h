// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>
#include <thread>

/// A print server on a local socket that answers every request with the same bytes and closes the connection.
/// It lasts as long as the program.
class FuzzServer {
public:
    FuzzServer();
    ~FuzzServer();
    FuzzServer(const FuzzServer &) = delete;
    FuzzServer &operator=(const FuzzServer &) = delete;

    /// The path of its socket.
    const QString &address() const { return m_address; }
    void setAnswer(const QByteArray &bytes);

private:
    void serve();
    void answer(int connection);

    QString m_address;
    int m_socket = -1;
    std::mutex m_mutex;
    QByteArray m_answer;
    std::thread m_thread;
};
