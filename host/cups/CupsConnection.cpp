// SPDX-License-Identifier: Apache-2.0
#include "CupsConnection.h"

#include <QCoreApplication>

#include <array>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::CupsConnection)
};

/// How often the task is looked at while the server is silent, in seconds.
constexpr double lookInterval = 0.1;

CupsFailure failureForStatus(ipp_status_t status)
{
    switch (status) {
    case IPP_STATUS_ERROR_NOT_FOUND:
    case IPP_STATUS_ERROR_GONE:
        return CupsFailure::NotFound;
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return CupsFailure::NotAuthorized;
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_CUPS_PKI:
        return CupsFailure::Unreachable;
    default:
        return CupsFailure::Refused;
    }
}

} // namespace

QByteArray queueUri(const QString &queue)
{
    std::array<char, HTTP_MAX_URI> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.toUtf8().constData());
    return uri.data();
}

QByteArray queueResource(const QString &queue)
{
    // libcups encodes what a request line may not hold.
    return "/printers/" + queue.toUtf8();
}

Result<CupsConnection, CupsError> CupsConnection::open(const CupsServer &server, BackgroundTask &task)
{
    auto state = std::make_unique<State>();
    state->server = server;
    state->task = &task;
    server.applyToThread();
    cupsSetPasswordCB2(password, state.get());
    CupsConnection connection(std::move(state));
    if (!connection.connect())
        return connection.lastError();
    return connection;
}

bool CupsConnection::connect()
{
    beginWaiting();
    errno = 0;
    // Encryption is switched on afterwards, when the limits on silence hold already.
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                              static_cast<int>(m_state->server.patience.count()),
                              m_state->task->cancelFlag()));
    if (!m_http)
        return false;
    httpSetTimeout(m_http.get(), lookInterval, mayWaitOn, m_state.get());
    const bool encrypts = cupsEncryption() >= HTTP_ENCRYPTION_REQUIRED;
    if (encrypts && httpEncryption(m_http.get(), cupsEncryption()) != 0) {
        m_http.reset();
        return false;
    }
    return true;
}

int CupsConnection::mayWaitOn(http_t *, void *data)
{
    State &state = *static_cast<State *>(data);
    state.wasSilent = state.silence.hasExpired(state.server.patience.count());
    return !state.wasSilent && (state.finishesFirst || !state.task->isCancelled());
}

const char *CupsConnection::password(const char *prompt, http_t *, const char *, const char *, void *data)
{
    State &state = *static_cast<State *>(data);
    const PasswordRequest request(QString::fromUtf8(prompt), QString::fromUtf8(cupsUser()));
    const std::optional<PasswordRequest::Credentials> answer =
        state.server.passwords->get(request, *state.task, state.server.askPassword, state.triedPasswords);
    state.lacksPassword = !answer;
    if (!answer)
        return nullptr;
    // libcups keeps no copy.
    state.credentials = *answer;
    cupsSetUser(state.credentials.user.constData());
    state.silence.start();
    return state.credentials.password.constData();
}

CupsError CupsConnection::lastError() const
{
    const QString name = m_state->server.displayName();
    if (m_state->task->isCancelled())
        return {CupsFailure::Cancelled, Text::tr("Given up on request.")};
    if (m_state->wasSilent || (!m_http && m_state->silence.hasExpired(m_state->server.patience.count())))
        return {CupsFailure::Silent, Text::tr("The print server \"%1\" does not answer.").arg(name)};
    if (!m_http) {
        const QString reason = QString::fromUtf8(cupsLastErrorString());
        return {CupsFailure::Unreachable,
                Text::tr("Cannot connect to the print server \"%1\": %2").arg(name, reason)};
    }
    // A server's own internal error comes with an answer, see answerError(). Without one, libcups means the
    // connection, or leaves the outcome of the request before.
    const ipp_status_t status = cupsLastError();
    if (status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_INTERNAL)
        return brokenError();
    return answerError();
}

CupsError CupsConnection::brokenError() const
{
    return {CupsFailure::Unreachable,
            Text::tr("The connection to the print server \"%1\" broke.").arg(server().displayName())};
}

CupsError CupsConnection::passwordError() const
{
    return {CupsFailure::NotAuthorized,
            Text::tr("The print server \"%1\" wants a password for the user \"%2\", and none was given.")
                .arg(server().displayName(), QString::fromUtf8(cupsUser()))};
}

CupsError CupsConnection::answerError() const
{
    if (m_state->lacksPassword && failureForStatus(cupsLastError()) == CupsFailure::NotAuthorized)
        return passwordError();
    return {failureForStatus(cupsLastError()),
            Text::tr("The print server \"%1\" says: %2")
                .arg(server().displayName(), QString::fromUtf8(cupsLastErrorString()))};
}

std::optional<CupsError> CupsConnection::checkAnswer(ipp_t *answer) const
{
    if (!answer || m_state->wasSilent)
        return lastError();
    const bool isGood = ippGetStatusCode(answer) < IPP_STATUS_REDIRECTION_OTHER_SITE;
    return isGood ? std::nullopt : std::optional(answerError());
}

IppPointer CupsConnection::newRequest(ipp_op_t operation, const QString &queue) const
{
    IppPointer request(ippNewRequest(operation));
    if (!queue.isEmpty())
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     queueUri(queue).constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

Result<IppPointer, CupsError> CupsConnection::exchange(IppPointer request, const QByteArray &resource)
{
    beginWaiting();
    IppPointer answer(cupsDoRequest(m_http.get(), request.release(), resource.constData()));
    if (const std::optional<CupsError> error = checkAnswer(answer.get()))
        return *error;
    return answer;
}

Result<IppPointer, CupsError> CupsConnection::exchangeToTheEnd(IppPointer request, const QByteArray &resource)
{
    m_state->finishesFirst = true;
    Result<IppPointer, CupsError> answer = exchange(std::move(request), resource);
    m_state->finishesFirst = false;
    return answer;
}

http_status_t CupsConnection::get(const QByteArray &resource, const QByteArray &unlessModifiedSince)
{
    // An authorization or an encryption may be asked for, once each.
    for (int attempt = 0; attempt < 4; ++attempt) {
        httpClearFields(m_http.get());
        if (!unlessModifiedSince.isEmpty())
            httpSetField(m_http.get(), HTTP_FIELD_IF_MODIFIED_SINCE, unlessModifiedSince.constData());
        httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, httpGetAuthString(m_http.get()));
        if (httpGet(m_http.get(), resource.constData()) != 0)
            return HTTP_STATUS_ERROR;
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (status == HTTP_STATUS_CONTINUE)
            status = httpUpdate(m_http.get());
        if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_UPGRADE_REQUIRED)
            return status;
        httpFlush(m_http.get());
        if (status == HTTP_STATUS_UNAUTHORIZED &&
            cupsDoAuthentication(m_http.get(), "GET", resource.constData()))
            return HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        beginWaiting();
        if (httpReconnect2(m_http.get(), static_cast<int>(server().patience.count()),
                           m_state->task->cancelFlag()))
            return HTTP_STATUS_ERROR;
        if (status == HTTP_STATUS_UPGRADE_REQUIRED && httpEncryption(m_http.get(), HTTP_ENCRYPTION_REQUIRED))
            return HTTP_STATUS_ERROR;
    }
    return HTTP_STATUS_UNAUTHORIZED;
}

Result<std::optional<CupsConnection::File>, CupsError>
CupsConnection::fetch(const QByteArray &resource, const QByteArray &unlessModifiedSince, qint64 mostBytes)
{
    const auto failure = [&](CupsFailure kind, const QString &reason) -> CupsError {
        return {kind, Text::tr("The print server \"%1\" does not give \"%2\": %3")
                          .arg(server().displayName(), QString::fromUtf8(resource), reason)};
    };
    beginWaiting();
    const http_status_t status = get(resource, unlessModifiedSince);
    if (m_state->wasSilent || m_state->task->isCancelled())
        return lastError();
    if (status == HTTP_STATUS_ERROR)
        return brokenError();
    if (status == HTTP_STATUS_NOT_MODIFIED) {
        httpFlush(m_http.get());
        return std::optional<File>();
    }
    if (status != HTTP_STATUS_OK) {
        httpFlush(m_http.get());
        const bool wantsPassword = status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_FORBIDDEN ||
                                   status == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        if (wantsPassword && m_state->lacksPassword)
            return passwordError();
        return failure(status == HTTP_STATUS_NOT_FOUND ? CupsFailure::NotFound
                       : wantsPassword                 ? CupsFailure::NotAuthorized
                                                       : CupsFailure::Refused,
                       QString::fromUtf8(httpStatus(status)));
    }
    File file;
    const char *const modified = httpGetField(m_http.get(), HTTP_FIELD_LAST_MODIFIED);
    file.modified = *modified ? httpGetDateTime(modified) : 0;
    const bool chunked = *httpGetField(m_http.get(), HTTP_FIELD_TRANSFER_ENCODING) != 0;
    const off_t announced = chunked ? 0 : httpGetLength2(m_http.get());
    std::array<char, 32768> piece = {};
    ssize_t length = 0;
    while (beginWaiting(), (length = httpRead2(m_http.get(), piece.data(), piece.size())) > 0) {
        file.content.append(piece.data(), length);
        if (file.content.size() > mostBytes)
            return failure(CupsFailure::Refused, Text::tr("it is larger than %1 MB").arg(mostBytes >> 20));
    }
    if (m_state->wasSilent || m_state->task->isCancelled())
        return lastError();
    if (length < 0 || (announced > 0 && file.content.size() != announced))
        return failure(CupsFailure::Unreachable, Text::tr("the connection broke in the middle"));
    return std::optional(file);
}

} // namespace host
