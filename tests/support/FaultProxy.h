// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "HttpFraming.h"

#include <QByteArray>
#include <QString>
#include <QThread>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class QTcpServer;
class QTcpSocket;

namespace test_support {

enum class Direction { ToServer, ToClient };

/// One message of HTTP that has passed a FaultProxy, wholly or up to the fault.
struct PassedMessage {
    Direction direction = Direction::ToServer;
    /// The request line or the status line.
    QByteArray startLine = {};
    /// The operation of the IPP message in a request, or of the request that an answer belongs to; 0 without.
    int operation = 0;
    qint64 headerBytes = 0;
    qint64 bytes = 0;
};

/// What goes wrong at one byte of one message, or of each one of an operation.
struct ProxyFault {
    enum class Kind {
        None,
        Cut,     ///< both connections are closed in front of the byte
        Silence, ///< from this byte on, nothing more passes in either direction
        Delay,   ///< the rest passes after a pause
        Repeat,  ///< the byte passes twice
        Reorder, ///< the byte and the one behind it change places
        Corrupt, ///< the bits of the byte are inverted
        Forge,   ///< the forgery passes in place of the byte and all that follows in the message
        Replay,  ///< the message passes twice; the byte means nothing
    };

    Kind kind = Kind::None;
    /// Counted from 0 in the order in which messages begin, over all connections and both directions. Ignored
    /// with an operation.
    int message = 0;
    /// The operation of IPP in whose first request or answer, by the direction, the fault is made; 0 for the
    /// message of the number. A "100 Continue" is no answer. Not for Replay.
    int operation = 0;
    Direction direction = Direction::ToServer;
    /// Counted from 0. A message that is shorter passes unharmed, and the next one of the operation is tried.
    /// In a request of an operation, the byte may lie in front of the IPP message's head: the fault is then
    /// made as soon as that has come, and before it passes.
    qint64 byte = 0;
    /// The byte is counted from the beginning of the content, behind the header.
    bool isInContent = false;
    QByteArray forgery = {};
    /// Every connection that exists or comes later suffers the same, as when the link is down: it is closed
    /// after a Cut, and silent after Silence.
    bool isLinkDown = false;
    /// The fault is made in all requests or answers of the operation, not only in the first. For Cut.
    bool isEveryTime = false;
};

/// What becomes of other and later connections when one is closed.
enum class OtherConnections { Pass, Close };

/// The connection is closed in front of the answer to the first request of the operation.
inline ProxyFault lostAnswer(int operation, OtherConnections others = OtherConnections::Pass)
{
    return {.kind = ProxyFault::Kind::Cut,
            .operation = operation,
            .direction = Direction::ToClient,
            .isLinkDown = others == OtherConnections::Close};
}

/// As lostAnswer(), but the header and the beginning of the IPP message pass.
inline ProxyFault cutAnswer(int operation, OtherConnections others = OtherConnections::Pass)
{
    ProxyFault fault = lostAnswer(operation, others);
    fault.byte = 20;
    fault.isInContent = true;
    return fault;
}

/// The connection is closed in front of the byte of each request of the operation.
inline ProxyFault cutRequests(int operation, qint64 byte = 0)
{
    return {.kind = ProxyFault::Kind::Cut, .operation = operation, .byte = byte, .isEveryTime = true};
}

/// Stands in front of a real server of HTTP, passes everything on in both directions and makes one fault.
/// Records what has passed, so that a run without a fault shows where faults can be made. It has a thread of
/// its own, so that it serves while the test's thread waits.
class FaultProxy {
public:
    /// For the server on the port of the loopback interface.
    explicit FaultProxy(quint16 serverPort, const ProxyFault &fault = {});
    /// Closes all connections after the server has read what was passed on to it.
    ~FaultProxy();
    FaultProxy(const FaultProxy &) = delete;
    FaultProxy &operator=(const FaultProxy &) = delete;

    /// "127.0.0.1:PORT"
    QString address() const;
    quint16 port() const { return m_port; }
    /// The messages that have begun, in this order.
    std::vector<PassedMessage> messages() const;
    /// Whether the fault was made: the message and the byte have come.
    bool hasStruck() const { return m_hasStruck; }
    /// How many connections of clients were silenced in the middle or were never served.
    int silencedCount() const { return m_silencedCount; }

private:
    /// One direction of a connection.
    struct Stream {
        HttpFraming framing;
        /// The index of the message that is passing; nothing between two messages.
        std::optional<int> message;
        /// How many bytes of the message have come.
        qint64 read = 0;
        /// The message so far, if it is to pass twice.
        QByteArray content;
        /// The rest of the message is dropped behind a forgery.
        bool isDropping = false;
    };
    enum class State { Passing, Delayed, Silent, Closed };
    struct Link {
        QTcpSocket *client = nullptr;
        QTcpSocket *server = nullptr;
        Stream toServer;
        Stream toClient;
        /// The operation of the last request.
        int operation = 0;
        State state = State::Passing;
    };
    /// The bytes that are read next, as they are passed on.
    using Change = QByteArray (*)(QByteArray);

    void accept(QTcpSocket *client);
    void pass(Link &link, Direction direction);
    std::optional<qint64> bytesToFault(const Link &link, Direction direction) const;
    void passBytes(Link &link, Direction direction, qint64 max, Change change);
    void begin(Link &link, Direction direction);
    void record(Link &link, Direction direction);
    void strike(Link &link, Direction direction);
    void close(Link &link);
    void silence(Link &link);
    void delay(Link &link);
    void end();

    static QTcpSocket *source(const Link &link, Direction direction);
    static QTcpSocket *target(const Link &link, Direction direction);
    static Stream &stream(Link &link, Direction direction);
    static const Stream &stream(const Link &link, Direction direction);

    const quint16 m_serverPort;
    const ProxyFault m_fault;
    quint16 m_port = 0;
    std::atomic<bool> m_hasStruck = false;
    std::atomic<int> m_silencedCount = 0;
    mutable std::mutex m_messagesMutex;
    std::vector<PassedMessage> m_messages;
    std::vector<std::unique_ptr<Link>> m_links;
    QThread m_thread;
    /// Lives on the thread.
    QTcpServer *m_server = nullptr;
};

} // namespace test_support
