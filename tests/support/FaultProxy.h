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

/// An HTTP message that has passed a FaultProxy, completely or up to the fault.
struct PassedMessage {
    Direction direction = Direction::ToServer;
    /// The request line or the status line.
    QByteArray startLine = {};
    /// The IPP operation of the request, or of the request that an answer belongs to; 0 for none.
    int operation = 0;
    qint64 headerBytes = 0;
    qint64 bytes = 0;
};

/// The fault at one byte of one message, or of each message of an operation.
struct ProxyFault {
    enum class Kind {
        None,
        Cut,     ///< both connections are closed before the byte
        Silence, ///< from this byte on, nothing more passes in either direction
        Delay,   ///< the rest passes after a pause
        Repeat,  ///< the byte passes twice
        Reorder, ///< the byte and the next one are exchanged
        Corrupt, ///< the bits of the byte are inverted
        Forge,   ///< the forgery replaces the byte and the rest of the message
        Replay,  ///< the message passes twice; the byte is ignored
    };

    Kind kind = Kind::None;
    /// Counted from 0 in the order in which messages begin, over all connections and both directions. Ignored
    /// when an operation is set.
    int message = 0;
    /// The IPP operation in whose first request or answer, depending on the direction, the fault is made; 0
    /// to use the message number. "100 Continue" does not count as an answer. Not for Replay.
    int operation = 0;
    Direction direction = Direction::ToServer;
    /// Counted from 0. A shorter message passes unchanged, and the fault is made in the next one of the
    /// operation. In a request of an operation, the byte may precede the head of the IPP message: the fault
    /// is then made when the head has arrived, before it passes.
    qint64 byte = 0;
    /// The byte is counted from the beginning of the content, after the header.
    bool isInContent = false;
    QByteArray forgery = {};
    /// The fault applies to all existing and later connections, as when the link is down: they are closed
    /// after Cut and silent after Silence.
    bool isLinkDown = false;
    /// The fault is made in all requests or answers of the operation, not only in the first. For Cut.
    bool isEveryTime = false;
};

/// What happens to other and later connections when one is closed.
enum class OtherConnections { Pass, Close };

/// The connection is closed before the answer to the first request of the operation.
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

/// The connection is closed before the byte of each request of the operation.
inline ProxyFault cutRequests(int operation, qint64 byte = 0)
{
    return {.kind = ProxyFault::Kind::Cut, .operation = operation, .byte = byte, .isEveryTime = true};
}

/// A proxy for a real HTTP server that forwards everything in both directions and makes one fault. It records
/// the messages that have passed, so that a run without a fault shows where faults can be made. It runs in
/// its own thread, so that it serves while the test's thread waits.
class FaultProxy {
public:
    /// Forwards to the server on the port of the loopback interface.
    explicit FaultProxy(quint16 serverPort, const ProxyFault &fault = {});
    /// Closes all connections after the server has read what was forwarded to it.
    ~FaultProxy();
    FaultProxy(const FaultProxy &) = delete;
    FaultProxy &operator=(const FaultProxy &) = delete;

    /// "127.0.0.1:PORT"
    QString address() const;
    quint16 port() const { return m_port; }
    /// The messages that have begun, in the order of their first bytes.
    std::vector<PassedMessage> messages() const;
    /// Returns true if the fault was made: the message and the byte have arrived.
    bool hasStruck() const { return m_hasStruck; }
    /// The number of client connections that were silenced or never served.
    int silencedCount() const { return m_silencedCount; }

private:
    /// One direction of a connection.
    struct Stream {
        HttpFraming framing;
        /// The index of the current message; absent between two messages.
        std::optional<int> message;
        /// The number of bytes of the message that were received.
        qint64 read = 0;
        /// The message so far, if it is to be repeated.
        QByteArray content;
        /// The rest of the message is dropped after a forgery.
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
    /// Returns the bytes just read as they are to be forwarded.
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
