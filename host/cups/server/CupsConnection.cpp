// SPDX-License-Identifier: Apache-2.0
#include "CupsConnection.h"

#include "FailureReason.h"
#include "ServerCertificate.h"

#include <QCoreApplication>

#include <linux/sockios.h>
#include <poll.h>
#include <sys/ioctl.h>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

struct CupsConnectionText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::server::CupsConnection)
};

/// The interval in seconds at which the task is checked while the server is silent.
constexpr double lookInterval = 0.1;

/// Returns the number of bytes in the socket's send queue: written, but not received by the server.
int unsentBytes(http_t *http)
{
    int bytes = 0;
    return ioctl(httpGetFd(http), SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

/// Returns whether the connection can carry another request: it is open, and libcups does not replace it.
bool isUsable(http_t *http)
{
    if (!http || httpGetFd(http) < 0)
        return false;
    const http_status_t last = httpGetStatus(http);
    const bool isReplaced = last == HTTP_STATUS_ERROR || last >= HTTP_STATUS_BAD_REQUEST;
    const bool isEnding = qstricmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0;
    pollfd socket{.fd = httpGetFd(http), .events = POLLRDHUP, .revents = 0};
    return !isReplaced && !isEnding && ::poll(&socket, 1, 0) == 0;
}

} // namespace

Result<CupsConnection, CupsError> CupsConnection::open(const CupsServer &server, BackgroundTask &task)
{
    auto state = std::make_unique<State>();
    state->server = server;
    state->task = &task;
    state->threadScope.emplace(server, password, state.get());
    state->encryption = cupsEncryption();
    CupsConnection connection(std::move(state));
    if (!connection.connect())
        return connection.noAnswer();
    return connection;
}

bool CupsConnection::lookUp()
{
    m_state->lookupError.reset();
    auto addresses = ServerAddresses::find(cupsServer(), ippPort(), server().timeout, *m_state->task);
    if (!addresses) {
        m_state->wasSilent = addresses.error().kind == ServerAddresses::ErrorKind::Silent;
        m_state->lookupError = addresses.error().message;
        return false;
    }
    m_state->addresses = std::move(addresses).value();
    return true;
}

bool CupsConnection::connect()
{
    m_http.reset();
    m_state->unsent = 0;
    beginWaiting();
    if (!lookUp())
        return false;
    // The server has its whole timeout, however long the name server has taken.
    beginWaiting();
    errno = 0;
    constexpr int connectLater = 0; // milliseconds
    m_http.reset(httpConnect2(cupsServer(), ippPort(), m_state->addresses.list(), AF_UNSPEC,
                              HTTP_ENCRYPTION_IF_REQUESTED, 1, connectLater, nullptr));
    if (!m_http)
        return false;
    // In effect before libcups connects, because it encrypts port 443 while it does.
    httpSetTimeout(m_http.get(), lookInterval, mayWaitOn, m_state.get());
    const bool encrypts = m_state->encryption >= HTTP_ENCRYPTION_REQUIRED;
    if (httpReconnect2(m_http.get(), static_cast<int>(timeout()), m_state->task->cancelFlag()) != 0 ||
        (encrypts && httpEncryption(m_http.get(), m_state->encryption) != 0) || !isTrusted())
        m_http.reset();
    return m_http != nullptr;
}

bool CupsConnection::reconnect()
{
    const QByteArray authorization = m_http ? httpGetAuthString(m_http.get()) : nullptr;
    const bool isPassword = authorization.startsWith("Basic ") || authorization.startsWith("Digest ");
    if (m_http && !authorization.isEmpty() && !isPassword) {
        // Keeps the connection: libcups counts in it how often the server has rejected credentials of
        // libcups's own.
        beginWaiting();
        httpClearFields(m_http.get());
        if (httpReconnect2(m_http.get(), static_cast<int>(timeout()), m_state->task->cancelFlag()) != 0 ||
            !isTrusted())
            m_http.reset();
        return m_http != nullptr;
    }
    // Replaces the connection: libcups also keeps the password in it and would send a rejected one again.
    const bool wasReadable = m_http && isReadable(m_http.get());
    if (!connect())
        return false;
    // The host name may resolve to another address than before.
    if (isPassword && (wasReadable || !isReadable(m_http.get())))
        httpSetAuthString(m_http.get(), authorization.constData(), nullptr);
    return true;
}

bool CupsConnection::prepare()
{
    beginWaiting();
    // libcups would reconnect without checking the certificate.
    return isUsable(m_http.get()) || reconnect();
}

int CupsConnection::mayWaitOn(http_t *http, void *data)
{
    State &state = *static_cast<State *>(data);
    // The system buffers megabytes that a slow link transmits for a long time; a server that receives them is
    // not silent.
    const int unsent = unsentBytes(http);
    if (unsent < state.unsent)
        state.restartSilence();
    state.unsent = unsent;
    state.wasSilent = state.hasBeenSilentTooLong();
    return !state.wasSilent && !state.isInterrupted();
}

bool CupsConnection::isCanceledOrTimedOut() const
{
    return m_state->wasSilent || m_state->isInterrupted();
}

CupsError CupsConnection::canceledError()
{
    return {CupsErrorKind::Canceled, CupsConnectionText::tr("Canceled on request.")};
}

CupsError CupsConnection::noAnswer() const
{
    const QString name = server().displayName();
    if (m_state->task->isCanceled())
        return canceledError();
    if (m_state->certificateError)
        return *m_state->certificateError;
    if (m_state->wasSilent || (!m_http && m_state->hasBeenSilentTooLong()))
        return {CupsErrorKind::Silent,
                CupsConnectionText::tr("The print server \"%1\" does not respond.").arg(name)};
    if (!m_http) {
        const QString reason = m_state->lookupError
                                   ? *m_state->lookupError
                                   : connectionFailureReason(m_state->addresses.list(), *m_state->task);
        return {CupsErrorKind::Unreachable,
                CupsConnectionText::tr("Cannot connect to the print server \"%1\": %2").arg(name, reason)};
    }
    return {CupsErrorKind::Unreachable,
            CupsConnectionText::tr("The connection to the print server \"%1\" was lost.").arg(name)};
}

} // namespace server
} // namespace cups
} // namespace host
