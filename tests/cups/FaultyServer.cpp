// SPDX-License-Identifier: Apache-2.0
#include "FaultyServer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/socket.h>

namespace {

const QByteArray encouragement = "HTTP/1.1 100 Continue\r\n\r\n";
/// How often a slow server takes something, in a second.
constexpr int takesPerSecond = 50;

} // namespace

FaultyServer::FaultyServer(quint16 realPort, const Faults &faults)
    : m_realPort(realPort)
    , m_faults(faults)
    , m_server(new QTcpServer) // ends with its thread, below
{
    EXPECT_TRUE(m_server->listen(QHostAddress::LocalHost));
    if (m_faults.bytesPerSecond > 0) {
        // The system's own room for what comes would hide how slowly it is read.
        const int room = 32768;
        EXPECT_EQ(setsockopt(static_cast<int>(m_server->socketDescriptor()), SOL_SOCKET, SO_RCVBUF, &room,
                             sizeof room),
                  0);
    }
    m_port = m_server->serverPort();
    QObject::connect(m_server, &QTcpServer::newConnection, m_server, [this] {
        while (QTcpSocket *const client = m_server->nextPendingConnection())
            serve(client);
    });
    QObject::connect(&m_thread, &QThread::finished, m_server, &QObject::deleteLater);
    m_server->moveToThread(&m_thread);
    m_thread.start();
}

FaultyServer::~FaultyServer()
{
    m_thread.quit();
    m_thread.wait();
}

QString FaultyServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

void FaultyServer::serve(QTcpSocket *client)
{
    ++m_connectionCount;
    if (m_faults.silent)
        return;
    auto *const real = new QTcpSocket(client);
    if (m_faults.bytesPerSecond > 0)
        takeSlowly(client, real);
    else
        QObject::connect(client, &QTcpSocket::readyRead, real,
                         [this, client, real] { take(client->readAll(), client, real); });
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    QObject::connect(real, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::errorOccurred, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::readyRead, client, [this, client, real] {
        const bool isSilent =
            m_faults.silentAfter > 0 && client->property("taken").toLongLong() > m_faults.silentAfter;
        if (isSilent || client->property("holding").toBool())
            return;
        // The encouragement to go on with a request is no answer yet.
        const bool isEncouragement = real->bytesAvailable() == encouragement.size();
        const bool isFirst = client->property("asked").toBool() && !isEncouragement;
        if (isFirst) {
            client->setProperty("asked", false);
            client->setProperty("answers", client->property("answers").toInt() + 1);
        }
        if (isFirst && client->property("answers").toInt() == m_faults.breakAtAnswer) {
            client->abort();
            return;
        }
        client->setProperty("holding", isFirst);
        if (isFirst)
            QTimer::singleShot(m_faults.delay, client, [this, client, real] { passInPieces(client, real); });
        else
            client->write(real->readAll());
    });
    real->connectToHost(QHostAddress(QHostAddress::LocalHost), m_realPort);
}

void FaultyServer::passInPieces(QTcpSocket *client, QTcpSocket *real) const
{
    const QByteArray bytes = real->readAll();
    const qsizetype content = m_faults.gap > 0 ? bytes.lastIndexOf("\r\n\r\n") + 4 : bytes.size();
    client->write(bytes.first(content));
    const qsizetype half = (bytes.size() - content) / 2;
    const auto pass = [=](qsizetype from, qsizetype length) { client->write(bytes.sliced(from, length)); };
    QTimer::singleShot(m_faults.gap, client, [=] { pass(content, half); });
    QTimer::singleShot(2 * m_faults.gap, client, [=] {
        pass(content + half, bytes.size() - content - half);
        client->write(real->readAll());
        client->setProperty("holding", false);
    });
}

void FaultyServer::takeSlowly(QTcpSocket *client, QTcpSocket *real)
{
    const int most = m_faults.bytesPerSecond / takesPerSecond;
    client->setReadBufferSize(most);
    auto *const pace = new QTimer(client);
    QObject::connect(pace, &QTimer::timeout, real, [this, most, client, real] {
        const bool stalls =
            m_faults.stallAfter > 0 && client->property("taken").toLongLong() > m_faults.stallAfter;
        if (!stalls && client->bytesAvailable() > 0)
            take(client->read(most), client, real);
    });
    pace->start(1000 / takesPerSecond);
}

void FaultyServer::take(const QByteArray &bytes, QTcpSocket *client, QTcpSocket *real)
{
    if (bytes.startsWith("POST ") || bytes.startsWith("GET ")) {
        ++m_requestCount;
        client->setProperty("asked", true);
        const bool refused = !m_faults.credentials.isEmpty() &&
                             !bytes.contains("Authorization: Basic " + m_faults.credentials.toBase64());
        if (refused) {
            client->write("HTTP/1.1 401 Unauthorized\r\nConnection: close\r\nContent-Length: 0\r\n"
                          "WWW-Authenticate: Basic realm=\"CUPS\"\r\n\r\n");
            client->disconnectFromHost();
            return;
        }
    }
    const qint64 taken = client->property("taken").toLongLong() + bytes.size();
    client->setProperty("taken", taken);
    if (m_faults.breakAfter > 0 && taken > m_faults.breakAfter) {
        client->abort();
        return;
    }
    if (m_faults.answersAfter > 0 && taken > m_faults.answersAfter) {
        if (!client->property("hasAnswered").toBool())
            client->write(m_faults.earlyAnswer);
        client->setProperty("hasAnswered", true);
        return;
    }
    real->write(bytes);
}
