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

/// How a server misbehaves. For connections that break, see test_support::FaultProxy.
struct Faults {
    /// Accepts connections and never answers.
    bool silent = false;
    /// Withholds answers until release().
    bool holds = false;
    /// The IPP operation that holds applies to; 0 for all requests.
    int heldOperation = 0;
    /// Waits before each answer, in milliseconds.
    int delay = 0;
    /// Pauses between an answer's header and its content and in the middle of the content, in milliseconds.
    int gap = 0;
    /// Passes on the headers of answers and withholds their contents until release().
    bool holdsContent = false;
    /// The max number of bytes read from each client per second; the rest stays in the client's system, as on
    /// a slow link. 0 for no limit.
    int bytesPerSecond = 0;
    /// Stops reading from a connection after this number of bytes, until release(); 0 for never.
    qint64 stallAfter = 0;
    /// Sends the early answer and stops reading after this number of bytes from a connection's client; 0 for
    /// never.
    qint64 answersAfter = 0;
    QByteArray earlyAnswer = {};
    /// The required "user:password"; empty when no password is required.
    QByteArray credentials = {};
    /// The IPP operation whose requests require the credentials; 0 for all requests.
    int lockedOperation = 0;
    /// Rejects such a request only after all of it has arrived, including its document.
    bool rejectsLate = false;
    /// Answers every request to encrypt the connection like a server without encryption.
    bool rejectsEncryption = false;
    /// The address that it and the real server listen on.
    QString host = QStringLiteral("127.0.0.1");
};

/// A server in front of the real one that misbehaves as Faults describes, on the loopback interface unless
/// Faults::host names another address. It runs in its own thread, so that it serves while the test's thread
/// waits.
class FaultyServer {
public:
    /// Forwards to the server on the port of the loopback interface; 0 for no real server.
    FaultyServer(quint16 realPort, const Faults &faults);
    ~FaultyServer();
    FaultyServer(const FaultyServer &) = delete;
    FaultyServer &operator=(const FaultyServer &) = delete;

    /// "HOST:PORT"
    QString address() const;
    quint16 port() const { return m_port; }
    /// The number of requests that were received.
    int requestCount() const { return m_requestCount; }
    /// The number of requests of the IPP operation that were received, without those whose password was
    /// missing.
    int requestCount(int operation) const;
    /// The number of requests that were received without the password.
    int rejectedCount() const { return m_rejectedCount; }
    /// The number of requests that were received with a password, right or wrong.
    int passwordCount() const { return m_passwordCount; }
    /// The number of connections that were accepted.
    int connectionCount() const { return m_connectionCount; }
    /// The number of bytes that were read from all connections.
    qint64 readBytes() const { return m_readBytes; }
    /// The number of answers that were withheld, including those released since.
    int heldCount() const { return m_heldCount; }
    /// The number of connections that have stalled.
    int stalledCount() const { return m_stalledCount; }

    /// Forwards everything that is withheld, and from now on everything immediately: answers, contents and
    /// documents.
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
    bool isOperationRejected(QByteArray &bytes, QTcpSocket *client);
    bool hasCredentials(const QByteArray &request);
    void reject(QTcpSocket *client);
    bool rejectsEncryption(const QByteArray &bytes, QTcpSocket *client);
    bool stalls(QTcpSocket *client);
    void passAnswer(QTcpSocket *client, QTcpSocket *real);
    void beginAnswer(QTcpSocket *client, QTcpSocket *real);
    void passInPieces(QTcpSocket *client, QTcpSocket *real);
    static void passRest(QTcpSocket *client, QTcpSocket *real, const QByteArray &rest);
    void readSlowly(QTcpSocket *client, QTcpSocket *real);
    void takeAll(QTcpSocket *client, QTcpSocket *real);
    void take(QByteArray bytes, QTcpSocket *client, QTcpSocket *real);

    const quint16 m_realPort;
    const QString m_host;
    /// While the server's thread runs, only that thread accesses it.
    Faults m_faults;
    quint16 m_port = 0;
    std::atomic<int> m_requestCount = 0;
    std::atomic<int> m_rejectedCount = 0;
    std::atomic<int> m_passwordCount = 0;
    std::atomic<int> m_connectionCount = 0;
    std::atomic<qint64> m_readBytes = 0;
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
