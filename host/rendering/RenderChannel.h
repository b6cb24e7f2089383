// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>
#include <utility>

namespace host {
inline namespace rendering {

/// A file descriptor that is closed with the object.
class OwnedDescriptor {
public:
    OwnedDescriptor() = default;
    explicit OwnedDescriptor(int number)
        : m_number(number)
    {
    }
    OwnedDescriptor(OwnedDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    OwnedDescriptor &operator=(OwnedDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~OwnedDescriptor();

    /// The descriptor; -1 if there is none.
    int number() const { return m_number; }
    /// Returns the descriptor, which the caller must close.
    int release() { return std::exchange(m_number, -1); }
    explicit operator bool() const { return m_number >= 0; }

private:
    int m_number = -1;
};

/// A message with the descriptor that was sent with it, if any.
struct ChannelMessage {
    QByteArray bytes;
    OwnedDescriptor descriptor;
};

/// One end of a connection between kvprint and the renderer: a local socket that keeps the bounds of messages
/// and carries descriptors (SOCK_SEQPACKET, SCM_RIGHTS; unix(7)).
class RenderChannel {
public:
    /// Owns the socket.
    explicit RenderChannel(OwnedDescriptor socket)
        : m_socket(std::move(socket))
    {
    }

    /// Returns both ends of a new connection, which no process inherits; absent if the system has no
    /// descriptors left.
    static std::optional<std::pair<OwnedDescriptor, OwnedDescriptor>> makeEnds();

    /// The socket, to be waited for.
    int descriptor() const { return m_socket.number(); }
    /// Sends a message, and the descriptor unless it is -1. The descriptor stays open. Returns false if the
    /// other end is closed.
    bool send(const QByteArray &message, int descriptor = -1) const;
    /// Waits for a message. Returns nothing if the other end is closed.
    std::optional<ChannelMessage> receive() const;

private:
    OwnedDescriptor m_socket;
};

/// Returns the bytes of a message's fixed part. The type has no pointers and no padding.
template<typename T>
QByteArray messageBytes(const T &value)
{
    return {reinterpret_cast<const char *>(&value), sizeof(T)};
}

} // namespace rendering
} // namespace host
