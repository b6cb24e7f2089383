// SPDX-License-Identifier: Apache-2.0
#include "FaultProxy.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/socket.h>

namespace test_support {

namespace {

constexpr int pauseMilliseconds = 30;
/// The max time for a server to notice that a connection has ended.
constexpr int endMilliseconds = 5000;

QByteArray unchanged(QByteArray bytes)
{
    return bytes;
}

QByteArray twice(QByteArray bytes)
{
    bytes.append(bytes);
    return bytes;
}

QByteArray turned(QByteArray bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

QByteArray inverted(QByteArray bytes)
{
    for (char &byte : bytes)
        byte = static_cast<char>(~byte);
    return bytes;
}

/// The operation of an IPP request (RFC 8010): bytes 2 and 3 of the content. 0 until they have arrived.
int operationIn(const HttpFraming &request)
{
    const QByteArray &content = request.contentStart();
    if (!request.header().toLower().contains("application/ipp") || content.size() < 4)
        return 0;
    return static_cast<uchar>(content[2]) << 8 | static_cast<uchar>(content[3]);
}

} // namespace

FaultProxy::FaultProxy(quint16 serverPort, const ProxyFault &fault)
    : m_serverPort(serverPort)
    , m_fault(fault)
    , m_server(new QTcpServer) // deleted on its thread
{
    EXPECT_TRUE(m_server->listen(QHostAddress::LocalHost));
    m_port = m_server->serverPort();
    QObject::connect(m_server, &QTcpServer::newConnection, m_server, [this] {
        while (QTcpSocket *const client = m_server->nextPendingConnection())
            accept(client);
    });
    m_server->moveToThread(&m_thread);
    m_thread.start();
}

FaultProxy::~FaultProxy()
{
    QMetaObject::invokeMethod(
        m_server, [this] { end(); }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void FaultProxy::end()
{
    for (const auto &link : m_links)
        close(*link);
    for (const auto &link : m_links) {
        if (link->server->state() != QAbstractSocket::UnconnectedState)
            link->server->waitForDisconnected(endMilliseconds);
    }
    delete m_server;
}

QString FaultProxy::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

std::vector<PassedMessage> FaultProxy::messages() const
{
    const std::scoped_lock lock(m_messagesMutex);
    return m_messages;
}

QTcpSocket *FaultProxy::source(const Link &link, Direction direction)
{
    return direction == Direction::ToServer ? link.client : link.server;
}

QTcpSocket *FaultProxy::target(const Link &link, Direction direction)
{
    return direction == Direction::ToServer ? link.server : link.client;
}

FaultProxy::Stream &FaultProxy::stream(Link &link, Direction direction)
{
    return direction == Direction::ToServer ? link.toServer : link.toClient;
}

const FaultProxy::Stream &FaultProxy::stream(const Link &link, Direction direction)
{
    return direction == Direction::ToServer ? link.toServer : link.toClient;
}

void FaultProxy::accept(QTcpSocket *client)
{
    m_links.push_back(std::make_unique<Link>());
    Link &link = *m_links.back();
    link.client = client;
    link.server = new QTcpSocket(m_server);
    if (m_hasStruck && m_fault.isLinkDown) {
        if (m_fault.kind == ProxyFault::Kind::Cut)
            close(link);
        else
            silence(link);
        return;
    }
    QObject::connect(client, &QTcpSocket::readyRead, m_server,
                     [this, &link] { pass(link, Direction::ToServer); });
    QObject::connect(link.server, &QTcpSocket::readyRead, m_server,
                     [this, &link] { pass(link, Direction::ToClient); });
    const auto closeUnlessSilent = [this, &link] {
        if (link.state != State::Silent)
            close(link);
    };
    QObject::connect(client, &QTcpSocket::disconnected, m_server, closeUnlessSilent);
    QObject::connect(link.server, &QTcpSocket::disconnected, m_server, closeUnlessSilent);
    link.server->connectToHost(QHostAddress(QHostAddress::LocalHost), m_serverPort);
}

void FaultProxy::close(Link &link)
{
    if (link.state == State::Closed)
        return;
    link.state = State::Closed;
    link.client->disconnectFromHost();
    if (link.server->state() == QAbstractSocket::ConnectingState)
        link.server->waitForConnected(endMilliseconds);
    if (link.server->state() != QAbstractSocket::ConnectedState)
        return;
    // The connection stays open: after a close, data that the server still sends would make the system drop
    // what the server has not read yet.
    link.server->flush();
    ::shutdown(static_cast<int>(link.server->socketDescriptor()), SHUT_WR);
}

void FaultProxy::silence(Link &link)
{
    link.state = State::Silent;
    ++m_silencedCount;
}

void FaultProxy::delay(Link &link)
{
    link.state = State::Delayed;
    QTimer::singleShot(pauseMilliseconds, m_server, [this, &link] {
        if (link.state != State::Delayed)
            return;
        link.state = State::Passing;
        pass(link, Direction::ToServer);
        pass(link, Direction::ToClient);
    });
}

void FaultProxy::pass(Link &link, Direction direction)
{
    while (link.state == State::Passing && source(link, direction)->bytesAvailable() > 0) {
        if (!stream(link, direction).message)
            begin(link, direction);
        const std::optional<qint64> ahead = bytesToFault(link, direction);
        if (ahead == 0)
            strike(link, direction);
        else
            passBytes(link, direction, ahead.value_or(source(link, direction)->bytesAvailable()), unchanged);
    }
    // Answers that are not forwarded are still read, so that they do not fill the system's buffers.
    if (link.state == State::Closed && direction == Direction::ToClient)
        link.server->readAll();
}

/// Returns how many bytes of the message pass before the fault. Absent when the fault belongs to another
/// message, and until that is known: the bytes received so far then pass.
std::optional<qint64> FaultProxy::bytesToFault(const Link &link, Direction direction) const
{
    const Stream &current = stream(link, direction);
    const bool hasOperation = m_fault.operation != 0;
    const bool isOther = hasOperation ? direction != m_fault.direction : current.message != m_fault.message;
    const bool isOver = m_hasStruck && !m_fault.isEveryTime;
    if (isOver || m_fault.kind == ProxyFault::Kind::None || isOther)
        return std::nullopt;
    HttpFraming framing = current.framing;
    framing.read(source(link, direction)->peek(source(link, direction)->bytesAvailable()));
    if (hasOperation) {
        const int operation = direction == Direction::ToServer ? operationIn(framing) : link.operation;
        if (operation != m_fault.operation || framing.header().startsWith("HTTP/1.1 100 "))
            return std::nullopt;
    }
    if (m_fault.isInContent && !framing.header().endsWith("\r\n\r\n"))
        return std::nullopt;
    const qint64 start = m_fault.isInContent ? framing.header().size() : 0;
    const qint64 missing = start + m_fault.byte - current.read;
    if (missing < 0 && !hasOperation)
        return std::nullopt;
    return std::max<qint64>(missing, 0);
}

void FaultProxy::begin(Link &link, Direction direction)
{
    const std::scoped_lock lock(m_messagesMutex);
    Stream &current = stream(link, direction);
    current = Stream();
    current.message = static_cast<int>(m_messages.size());
    m_messages.push_back({.direction = direction});
}

void FaultProxy::record(Link &link, Direction direction)
{
    const std::scoped_lock lock(m_messagesMutex);
    const Stream &current = stream(link, direction);
    PassedMessage &message = m_messages[static_cast<std::size_t>(*current.message)];
    const QByteArray &header = current.framing.header();
    message.startLine = header.first(std::max<qsizetype>(header.indexOf('\r'), 0));
    message.headerBytes = header.size();
    message.bytes = current.read;
    if (direction == Direction::ToServer)
        link.operation = operationIn(current.framing);
    message.operation = link.operation;
}

void FaultProxy::passBytes(Link &link, Direction direction, qint64 max, Change change)
{
    Stream &current = stream(link, direction);
    const QByteArray bytes = source(link, direction)->peek(max);
    const qsizetype length = current.framing.read(bytes);
    source(link, direction)->skip(length);
    current.read += length;
    record(link, direction);
    const QByteArray passed = change(bytes.first(length));
    if (!current.isDropping)
        target(link, direction)->write(passed);
    const bool isReplayed = m_fault.kind == ProxyFault::Kind::Replay && current.message == m_fault.message;
    if (isReplayed)
        current.content += passed;
    if (!current.framing.isComplete())
        return;
    target(link, direction)->write(current.content);
    m_hasStruck = m_hasStruck || isReplayed;
    current.message.reset();
}

void FaultProxy::strike(Link &link, Direction direction)
{
    // The fault of a repeated message occurs at its end.
    if (m_fault.kind == ProxyFault::Kind::Replay) {
        passBytes(link, direction, source(link, direction)->bytesAvailable(), unchanged);
        return;
    }
    m_hasStruck = true;
    switch (m_fault.kind) {
    case ProxyFault::Kind::Cut:
    case ProxyFault::Kind::Silence: {
        const auto harm = m_fault.kind == ProxyFault::Kind::Cut ? &FaultProxy::close : &FaultProxy::silence;
        for (const auto &each : m_links) {
            if (each.get() == &link || m_fault.isLinkDown)
                (this->*harm)(*each);
        }
        break;
    }
    case ProxyFault::Kind::Delay:
        delay(link);
        break;
    case ProxyFault::Kind::Forge:
        target(link, direction)->write(m_fault.forgery);
        stream(link, direction).isDropping = true;
        break;
    case ProxyFault::Kind::Repeat:
        passBytes(link, direction, 1, twice);
        break;
    case ProxyFault::Kind::Reorder:
        passBytes(link, direction, 2, turned);
        break;
    default:
        passBytes(link, direction, 1, inverted);
        break;
    }
}

} // namespace test_support
