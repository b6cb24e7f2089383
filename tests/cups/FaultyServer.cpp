// SPDX-License-Identifier: Apache-2.0
#include "FaultyServer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

FaultyServer::FaultyServer(quint16 realPort, const Faults &faults)
    : m_realPort(realPort)
    , m_faults(faults)
    , m_server(new QTcpServer) // ends with its thread, below
{
    EXPECT_TRUE(m_server->listen(QHostAddress::LocalHost));
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
    QObject::connect(client, &QTcpSocket::readyRead, real,
                     [this, client, real] { takeFromClient(client, real); });
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    QObject::connect(real, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::errorOccurred, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::readyRead, client, [this, client, real] {
        const auto pass = [client, real] {
            client->setProperty("holding", false);
            client->write(real->readAll());
        };
        if (client->property("asked").toBool() && m_faults.delay > 0) {
            client->setProperty("asked", false);
            client->setProperty("holding", true);
            QTimer::singleShot(m_faults.delay, client, pass);
        } else if (!client->property("holding").toBool()) {
            pass();
        }
    });
    real->connectToHost(QHostAddress(QHostAddress::LocalHost), m_realPort);
}

void FaultyServer::takeFromClient(QTcpSocket *client, QTcpSocket *real)
{
    const QByteArray bytes = client->readAll();
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
    real->write(bytes);
}
