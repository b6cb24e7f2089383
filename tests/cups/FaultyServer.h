// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QThread>

#include <atomic>
#include <memory>

class QTcpServer;
class QTcpSocket;

/// How a server misbehaves.
struct Faults {
    /// Accepts connections and never says a word.
    bool silent = false;
    /// Passes on all that the client says but none of the answers to it, on every connection on which more
    /// bytes than these have come; 0 never.
    qint64 silentAfter = 0;
    /// Waits before each answer, in milliseconds.
    int delay = 0;
    /// Pauses between an answer's header and its content and in the middle of the content, in milliseconds.
    int gap = 0;
    /// Breaks every connection when so many bytes of one have come from the client; 0 never.
    qint64 breakAfter = 0;
    /// Takes no more than so many bytes in a second from each client, and leaves the rest in the client's
    /// system, as a slow link does; 0 takes all at once.
    int bytesPerSecond = 0;
    /// Takes nothing more from a connection when so many bytes of it have come slowly; 0 never.
    qint64 stallAfter = 0;
    /// Says the early answer, and takes nothing more, when so many bytes of a connection have come from the
    /// client; 0 never.
    qint64 answersAfter = 0;
    QByteArray earlyAnswer = {};
    /// Breaks every connection instead of giving this answer on it, counted from 1; 0 never.
    int breakAtAnswer = 0;
    /// Wants "user:password" before anything else; empty wants none.
    QByteArray credentials = {};
};

/// A server on the loopback interface that stands in front of the real one and misbehaves. It has a thread of
/// its own, so that it serves while the test's thread waits.
class FaultyServer {
public:
    /// For the server on the port of the loopback interface; 0 when there is none behind it.
    FaultyServer(quint16 realPort, const Faults &faults);
    ~FaultyServer();
    FaultyServer(const FaultyServer &) = delete;
    FaultyServer &operator=(const FaultyServer &) = delete;

    /// "127.0.0.1:PORT"
    QString address() const;
    /// How many requests came in.
    int requestCount() const { return m_requestCount; }
    /// How many connections were made.
    int connectionCount() const { return m_connectionCount; }

private:
    void serve(QTcpSocket *client);
    void passInPieces(QTcpSocket *client, QTcpSocket *real) const;
    void takeSlowly(QTcpSocket *client, QTcpSocket *real);
    void take(const QByteArray &bytes, QTcpSocket *client, QTcpSocket *real);

    const quint16 m_realPort;
    const Faults m_faults;
    quint16 m_port = 0;
    std::atomic<int> m_requestCount = 0;
    std::atomic<int> m_connectionCount = 0;
    QThread m_thread;
    /// Lives on the thread.
    QTcpServer *m_server = nullptr;
};
