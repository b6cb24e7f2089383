// SPDX-License-Identifier: Apache-2.0
#include "FailureReason.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
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

/// Returns whether the connection is complete or has failed. Waits for one second, or until the task is
/// canceled.
bool isDecided(int descriptor, const BackgroundTask &task)
{
    constexpr int maxMilliseconds = 1000;
    constexpr int interval = 100; // milliseconds
    pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
    for (int waited = 0; waited < maxMilliseconds && !task.isCanceled(); waited += interval) {
        if (::poll(&waiting, 1, interval) > 0)
            return true;
    }
    return false;
}

/// Returns the system's error for a connection to the address; 0 if it succeeds.
int connectionError(http_addr_t &address, const BackgroundTask &task)
{
    const int descriptor = ::socket(httpAddrFamily(&address), SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return errno;
    int error = 0;
    if (::connect(descriptor, &address.addr, static_cast<socklen_t>(httpAddrLength(&address))) != 0)
        error = errno;
    if (error == EINPROGRESS) {
        socklen_t length = sizeof error;
        error = ETIMEDOUT;
        if (isDecided(descriptor, task))
            ::getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &length);
    }
    ::close(descriptor);
    return error;
}

} // namespace

QString connectionFailureReason(http_addrlist_t *addresses, const BackgroundTask &task)
{
    const QByteArray reported = cupsLastErrorString();
    if (reported != std::strerror(EHOSTDOWN)) // NOLINT(concurrency-mt-unsafe): glibc's is safe
        return QString::fromLocal8Bit(reported);
    for (http_addrlist_t *each = addresses; each; each = each->next) {
        if (const int error = connectionError(each->addr, task))
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
