// SPDX-License-Identifier: Apache-2.0
#include "FailureReason.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <memory>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

struct FailureReasonText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::server::FailureReason)
};

struct AddressListFree {
    void operator()(http_addrlist_t *list) const { httpAddrFreeList(list); }
};

/// Returns the system's error for a connection to the address; 0 if it succeeds.
int connectionError(http_addr_t &address)
{
    constexpr int maxMilliseconds = 1000;
    const int descriptor = ::socket(httpAddrFamily(&address), SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return errno;
    int error = 0;
    if (::connect(descriptor, &address.addr, static_cast<socklen_t>(httpAddrLength(&address))) != 0)
        error = errno;
    if (error == EINPROGRESS) {
        pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
        socklen_t length = sizeof error;
        error = ETIMEDOUT;
        if (::poll(&waiting, 1, maxMilliseconds) > 0)
            ::getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &length);
    }
    ::close(descriptor);
    return error;
}

} // namespace

QString connectionFailureReason(const QByteArray &server, int port)
{
    const QByteArray reported = cupsLastErrorString();
    if (reported != std::strerror(EHOSTDOWN)) // NOLINT(concurrency-mt-unsafe): glibc's is safe
        return QString::fromLocal8Bit(reported);
    const std::unique_ptr<http_addrlist_t, AddressListFree> list(
        httpAddrGetList(server.constData(), AF_UNSPEC, QByteArray::number(port).constData()));
    for (http_addrlist_t *each = list.get(); each; each = each->next) {
        if (const int error = connectionError(each->addr))
            return qt_error_string(error);
    }
    return QString::fromLocal8Bit(reported);
}

QString statusReason(http_status_t status)
{
    // cupsd also returns this status when it cannot write to its disk.
    if (status == HTTP_STATUS_REQUEST_TOO_LARGE)
        return FailureReasonText::tr(
            "It cannot store the document: the disk is full, or the document is larger than it accepts.");
    return QString::fromUtf8(httpStatus(status));
}

} // namespace server
} // namespace cups
} // namespace host
