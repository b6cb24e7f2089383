// SPDX-License-Identifier: Apache-2.0
#include "RenderChannel.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace host {
inline namespace rendering {

namespace {

/// The max number of bytes of a message; a longer one is cut off.
constexpr qsizetype maxMessage = 65'536;

/// Calls the function again while a signal interrupts it.
template<typename Call>
ssize_t uninterrupted(const Call &call)
{
    for (;;) {
        const ssize_t result = call();
        if (result >= 0 || errno != EINTR)
            return result;
    }
}

using ControlBuffer = std::array<char, CMSG_SPACE(sizeof(int))>;

/// The message with its parts as the system calls expect it. The arguments are borrowed.
msghdr headerOf(iovec &part, ControlBuffer &control)
{
    msghdr header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = control.data();
    header.msg_controllen = control.size();
    return header;
}

} // namespace

OwnedDescriptor::~OwnedDescriptor()
{
    if (m_number >= 0)
        close(m_number);
}

std::optional<std::pair<OwnedDescriptor, OwnedDescriptor>> RenderChannel::makeEnds()
{
    std::array<int, 2> ends = {};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return std::nullopt;
    return std::pair(OwnedDescriptor(ends[0]), OwnedDescriptor(ends[1]));
}

bool RenderChannel::send(const QByteArray &message, int descriptor) const
{
    iovec part = {const_cast<char *>(message.constData()), static_cast<std::size_t>(message.size())};
    alignas(cmsghdr) ControlBuffer control = {};
    msghdr header = headerOf(part, control);
    if (descriptor >= 0) {
        cmsghdr *const rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(descriptor));
        std::memcpy(CMSG_DATA(rights), &descriptor, sizeof(descriptor));
    } else {
        header.msg_control = nullptr;
        header.msg_controllen = 0;
    }
    const ssize_t sent = uninterrupted([&] { return sendmsg(m_socket.number(), &header, MSG_NOSIGNAL); });
    return sent == message.size();
}

std::optional<ChannelMessage> RenderChannel::receive() const
{
    ChannelMessage message{QByteArray(maxMessage, Qt::Uninitialized), {}};
    iovec part = {message.bytes.data(), static_cast<std::size_t>(message.bytes.size())};
    alignas(cmsghdr) ControlBuffer control = {};
    msghdr header = headerOf(part, control);
    const ssize_t received =
        uninterrupted([&] { return recvmsg(m_socket.number(), &header, MSG_CMSG_CLOEXEC); });
    if (received <= 0)
        return std::nullopt;
    message.bytes.truncate(received);
    const cmsghdr *const rights = CMSG_FIRSTHDR(&header);
    if (rights && rights->cmsg_level == SOL_SOCKET && rights->cmsg_type == SCM_RIGHTS) {
        int descriptor = -1;
        std::memcpy(&descriptor, CMSG_DATA(rights), sizeof(descriptor));
        message.descriptor = OwnedDescriptor(descriptor);
    }
    return message;
}

} // namespace rendering
} // namespace host
