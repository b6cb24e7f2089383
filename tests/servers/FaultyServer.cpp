// SPDX-License-Identifier: Apache-2.0
#include "FaultyServer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>
#include <sys/socket.h>

namespace {

const QByteArray encouragement = "HTTP/1.1 100 Continue\r\n\r\n";
const QByteArray endOfHeader = "\r\n\r\n";
/// The end of a document of unknown length (chunked).
const QByteArray endOfDocument = "0\r\n\r\n";
/// How often a slow server reads, per second.
constexpr int readsPerSecond = 50;

/// Returns the IPP operation of a request; absent until its first bytes have arrived. RFC 8010: bytes 2 and 3
/// of the message, which begins after the HTTP header and, in a document of unknown length, after the first
/// chunk length.
std::optional<int> operationOf(const QByteArray &request)
{
    const qsizetype header = request.indexOf(endOfHeader);
    if (header < 0)
        return std::nullopt;
    qsizetype message = header + endOfHeader.size();
    if (request.first(header).toLower().contains("transfer-encoding: chunked")) {
        const qsizetype endOfLength = request.indexOf("\r\n", message);
        if (endOfLength < 0)
            return std::nullopt;
        message = endOfLength + 2;
    }
    if (request.size() < message + 4)
        return std::nullopt;
    return static_cast<uchar>(request[message + 2]) << 8 | static_cast<uchar>(request[message + 3]);
}

} // namespace

FaultyServer::FaultyServer(quint16 realPort, const Faults &faults)
    : m_realPort(realPort)
    , m_host(faults.host)
    , m_faults(faults)
    , m_server(new QTcpServer) // deleted when its thread finishes, below
{
    EXPECT_TRUE(m_server->listen(QHostAddress(m_faults.host)));
    if (m_faults.bytesPerSecond > 0 || m_faults.stallAfter > 0) {
        // A larger receive buffer of the system would hide how slowly the server reads.
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
    return QStringLiteral("%1:%2").arg(m_host).arg(m_port);
}

int FaultyServer::requestCount(int operation) const
{
    const std::scoped_lock lock(m_operationsMutex);
    const auto found = m_operations.find(operation);
    return found == m_operations.end() ? 0 : found->second;
}

void FaultyServer::hold()
{
    QMetaObject::invokeMethod(
        m_server, [this] { m_faults.holds = true; }, Qt::BlockingQueuedConnection);
}

void FaultyServer::release()
{
    const auto releaseAll = [this] {
        m_faults.holds = false;
        m_faults.holdsContent = false;
        m_faults.stallAfter = 0;
        m_faults.bytesPerSecond = 0;
        for (const Pair &pair : std::exchange(m_held, {})) {
            if (!pair.client || !pair.real)
                continue;
            pair.client->setProperty("holding", false);
            pair.client->write(pair.real->readAll());
        }
        for (const Pair &pair : m_all) {
            if (pair.client && pair.real)
                takeAll(pair.client, pair.real);
        }
    };
    QMetaObject::invokeMethod(m_server, releaseAll, Qt::BlockingQueuedConnection);
}

void FaultyServer::serve(QTcpSocket *client)
{
    ++m_connectionCount;
    if (m_faults.silent)
        return;
    auto *const real = new QTcpSocket(client);
    std::erase_if(m_all, [](const Pair &pair) { return !pair.client || !pair.real; });
    m_all.push_back({client, real});
    if (m_faults.bytesPerSecond > 0)
        readSlowly(client, real);
    else
        QObject::connect(client, &QTcpSocket::readyRead, real,
                         [this, client, real] { takeAll(client, real); });
    if (m_faults.stallAfter > 0)
        client->setReadBufferSize(65536);
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    QObject::connect(real, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::errorOccurred, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(real, &QTcpSocket::readyRead, client,
                     [this, client, real] { passAnswer(client, real); });
    // A real server that is reached over the loopback interface rejects requests to another address.
    real->connectToHost(QHostAddress(m_host), m_realPort);
}

void FaultyServer::passAnswer(QTcpSocket *client, QTcpSocket *real)
{
    if (client->property("holding").toBool())
        return;
    // "100 Continue" is not the answer yet.
    const bool isContinue = real->bytesAvailable() == encouragement.size();
    const bool isFirst = client->property("asked").toBool() && !isContinue;
    if (!isFirst) {
        client->write(real->readAll());
        return;
    }
    client->setProperty("asked", false);
    beginAnswer(client, real);
}

void FaultyServer::beginAnswer(QTcpSocket *client, QTcpSocket *real)
{
    client->setProperty("holding", true);
    const bool isMeant =
        m_faults.heldOperation == 0 || client->property("operation").toInt() == m_faults.heldOperation;
    const bool holdsAll = m_faults.holds && isMeant;
    if (!holdsAll && !m_faults.holdsContent) {
        QTimer::singleShot(m_faults.delay, client, [this, client, real] { passInPieces(client, real); });
        return;
    }
    if (!holdsAll)
        client->write(
            real->read(real->peek(real->bytesAvailable()).lastIndexOf(endOfHeader) + endOfHeader.size()));
    m_held.push_back({client, real});
    ++m_heldCount;
}

void FaultyServer::passInPieces(QTcpSocket *client, QTcpSocket *real)
{
    if (m_faults.gap == 0) {
        passRest(client, real, {});
        return;
    }
    const QByteArray bytes = real->readAll();
    const qsizetype content = bytes.lastIndexOf(endOfHeader) + endOfHeader.size();
    client->write(bytes.first(content));
    const qsizetype half = (bytes.size() - content) / 2;
    QTimer::singleShot(m_faults.gap, client, [=] { client->write(bytes.sliced(content, half)); });
    QTimer::singleShot(2 * m_faults.gap, client,
                       [=] { passRest(client, real, bytes.sliced(content + half)); });
}

void FaultyServer::passRest(QTcpSocket *client, QTcpSocket *real, const QByteArray &rest)
{
    client->write(rest);
    client->write(real->readAll());
    client->setProperty("holding", false);
}

void FaultyServer::readSlowly(QTcpSocket *client, QTcpSocket *real)
{
    const int most = m_faults.bytesPerSecond / readsPerSecond;
    client->setReadBufferSize(most);
    auto *const pace = new QTimer(client);
    QObject::connect(pace, &QTimer::timeout, real, [this, most, client, real] {
        const bool isReleased = m_faults.bytesPerSecond == 0;
        if (isReleased)
            takeAll(client, real);
        else if (client->bytesAvailable() > 0 && !stalls(client))
            take(client->read(most), client, real);
    });
    pace->start(1000 / readsPerSecond);
}

void FaultyServer::takeAll(QTcpSocket *client, QTcpSocket *real)
{
    if (client->bytesAvailable() > 0 && !stalls(client))
        take(client->readAll(), client, real);
}

bool FaultyServer::stalls(QTcpSocket *client)
{
    if (m_faults.stallAfter == 0 || client->property("taken").toLongLong() <= m_faults.stallAfter)
        return false;
    if (!client->property("stalls").toBool())
        ++m_stalledCount;
    client->setProperty("stalls", true);
    return true;
}

void FaultyServer::countRequest(const QByteArray &bytes, QTcpSocket *client)
{
    const bool isPost = bytes.startsWith("POST ");
    if (isPost || bytes.startsWith("GET ")) {
        ++m_requestCount;
        client->setProperty("asked", true);
        client->setProperty("operation", 0);
        client->setProperty("beginning", isPost ? bytes : QByteArray());
    } else if (!client->property("beginning").toByteArray().isEmpty()) {
        client->setProperty("beginning", client->property("beginning").toByteArray() + bytes);
    }
    if (const std::optional<int> operation = operationOf(client->property("beginning").toByteArray())) {
        client->setProperty("operation", *operation);
        client->setProperty("beginning", QByteArray());
        const std::scoped_lock lock(m_operationsMutex);
        ++m_operations[*operation];
    }
}

bool FaultyServer::hasCredentials(const QByteArray &request)
{
    if (request.contains("Authorization: Basic "))
        ++m_passwordCount;
    return request.contains("Authorization: Basic " + m_faults.credentials.toBase64());
}

bool FaultyServer::isRefused(const QByteArray &bytes, QTcpSocket *client)
{
    const bool isRequest = bytes.startsWith("POST ") || bytes.startsWith("GET ");
    if (!isRequest || m_faults.credentials.isEmpty() || hasCredentials(bytes))
        return false;
    reject(client);
    return true;
}

bool FaultyServer::isOperationRejected(QByteArray &bytes, QTcpSocket *client)
{
    if (!client->property("isRefused").toBool()) {
        // Everything is withheld until the operation is known.
        const QByteArray withheld = client->property("withheld").toByteArray();
        if (withheld.isEmpty() && !bytes.startsWith("POST "))
            return false;
        bytes.prepend(withheld);
        const std::optional<int> operation = operationOf(bytes);
        client->setProperty("withheld", operation ? QByteArray() : bytes);
        if (!operation)
            return true;
        if (*operation != m_faults.lockedOperation || hasCredentials(bytes))
            return false;
        client->setProperty("isRefused", true);
    }
    const QByteArray end = client->property("end").toByteArray() + bytes;
    client->setProperty("end", end.right(endOfDocument.size()));
    if (!m_faults.rejectsLate || end.endsWith(endOfDocument))
        reject(client);
    return true;
}

void FaultyServer::reject(QTcpSocket *client)
{
    ++m_requestCount;
    ++m_rejectedCount;
    client->write("HTTP/1.1 401 Unauthorized\r\nConnection: close\r\nContent-Length: 0\r\n"
                  "WWW-Authenticate: Basic realm=\"CUPS\"\r\n\r\n");
    client->disconnectFromHost();
}

bool FaultyServer::rejectsEncryption(const QByteArray &bytes, QTcpSocket *client)
{
    if (!m_faults.rejectsEncryption || !bytes.startsWith("OPTIONS "))
        return false;
    client->write("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
    return true;
}

void FaultyServer::take(QByteArray bytes, QTcpSocket *client, QTcpSocket *real)
{
    const bool isPasswordMissing =
        m_faults.lockedOperation != 0 ? isOperationRejected(bytes, client) : isRefused(bytes, client);
    if (isPasswordMissing || rejectsEncryption(bytes, client))
        return;
    countRequest(bytes, client);
    const qint64 taken = client->property("taken").toLongLong() + bytes.size();
    client->setProperty("taken", taken);
    m_readBytes += bytes.size();
    if (m_faults.answersAfter > 0 && taken > m_faults.answersAfter) {
        if (!client->property("hasAnswered").toBool())
            client->write(m_faults.earlyAnswer);
        client->setProperty("hasAnswered", true);
        return;
    }
    real->write(bytes);
}
