// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QThread>

#include <atomic>
#include <map>
#include <mutex>
#include <vector>

class QTcpServer;
class QTcpSocket;

/// How a server misbehaves. Connections that break are test_support::FaultProxy's.
struct Faults {
    /// Accepts connections and never answers.
    bool silent = false;
    /// Withholds answers until release().
    bool holds = false;
    /// The operation of IPP that is meant by holds; 0 any request.
    int heldOperation = 0;
    /// Waits before each answer, in milliseconds.
    int delay = 0;
    /// Pauses between an answer's header and its content and in the middle of the content, in milliseconds.
    int gap = 0;
    /// Passes on the headers of answers and withholds their contents until release().
    bool holdsContent = false;
    /// Takes no more than so many bytes in a second from each client, and leaves the rest in the client's
    /// system, as a slow link does; 0 takes all at once.
    int bytesPerSecond = 0;
    /// Takes nothing more from a connection when so many bytes of it have come, until release(); 0 never.
    qint64 stallAfter = 0;
    /// Sends the early answer, and takes nothing more, when so many bytes of a connection have come from the
    /// client; 0 never.
    qint64 answersAfter = 0;
    QByteArray earlyAnswer = {};
    /// Requires "user:password" before anything else; empty requires none.
    QByteArray credentials = {};
    /// Requires them for requests of this operation of IPP only; 0 for all.
    int lockedOperation = 0;
    /// Refuses such a request when all of it has come, with the document that belongs to it, and not before.
    bool refusesLate = false;
    /// Answers every request to encrypt the connection as a server does that cannot.
    bool refusesEncryption = false;
    /// The address that it and the real server listen on.
    QString host = QStringLiteral("127.0.0.1");
};

/// A server, on the loopback interface unless Faults::host says otherwise, that stands in front of the real
/// one and misbehaves. It has a thread of its own, so that it serves while the test's thread waits.
class FaultyServer {
public:
    /// For the server on the port of the loopback interface; 0 when there is none behind it.
    FaultyServer(quint16 realPort, const Faults &faults);
    ~FaultyServer();
    FaultyServer(const FaultyServer &) = delete;
    FaultyServer &operator=(const FaultyServer &) = delete;

    /// "HOST:PORT"
    QString address() const;
    quint16 port() const { return m_port; }
    /// How many requests came in.
    int requestCount() const { return m_requestCount; }
    /// How many requests of the operation of IPP came in, without those that lacked the password.
    int requestCount(int operation) const;
    /// How many requests without the password came in.
    int refusedCount() const { return m_refusedCount; }
    /// How many requests came in with a password, right or wrong.
    int passwordCount() const { return m_passwordCount; }
    /// How many connections were made.
    int connectionCount() const { return m_connectionCount; }
    /// How many bytes were taken from all connections.
    qint64 takenBytes() const { return m_takenBytes; }
    /// How many answers were withheld, those that have been released included.
    int heldCount() const { return m_heldCount; }
    /// How many connections have stalled.
    int stalledCount() const { return m_stalledCount; }

    /// Passes on what is withheld, and everything from now on at once: answers, contents and documents.
    void release();
    /// Withholds answers again, as Faults::holds does.
    void hold();

private:
    struct Pair {
        QPointer<QTcpSocket> client;
        QPointer<QTcpSocket> real;
    };

    void serve(QTcpSocket *client);
    void countRequest(const QByteArray &bytes, QTcpSocket *client);
    bool isRefused(const QByteArray &bytes, QTcpSocket *client);
    bool isOperationRefused(QByteArray &bytes, QTcpSocket *client);
    bool hasCredentials(const QByteArray &request);
    void refuse(QTcpSocket *client);
    bool refusesEncryption(const QByteArray &bytes, QTcpSocket *client);
    bool stalls(QTcpSocket *client);
    void passAnswer(QTcpSocket *client, QTcpSocket *real);
    void beginAnswer(QTcpSocket *client, QTcpSocket *real);
    void passInPieces(QTcpSocket *client, QTcpSocket *real);
    static void passRest(QTcpSocket *client, QTcpSocket *real, const QByteArray &rest);
    void takeSlowly(QTcpSocket *client, QTcpSocket *real);
    void takeAll(QTcpSocket *client, QTcpSocket *real);
    void take(QByteArray bytes, QTcpSocket *client, QTcpSocket *real);

    const quint16 m_realPort;
    const QString m_host;
    /// Only its own thread uses it while that runs.
    Faults m_faults;
    quint16 m_port = 0;
    std::atomic<int> m_requestCount = 0;
    std::atomic<int> m_refusedCount = 0;
    std::atomic<int> m_passwordCount = 0;
    std::atomic<int> m_connectionCount = 0;
    std::atomic<qint64> m_takenBytes = 0;
    std::atomic<int> m_heldCount = 0;
    std::atomic<int> m_stalledCount = 0;
    mutable std::mutex m_operationsMutex;
    std::map<int, int> m_operations;
    std::vector<Pair> m_held;
    std::vector<Pair> m_all;
    QThread m_thread;
    /// Lives on the thread.
    QTcpServer *m_server = nullptr;
};
