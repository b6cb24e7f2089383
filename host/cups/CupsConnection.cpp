// SPDX-License-Identifier: Apache-2.0
#include "CupsConnection.h"

#include "FailureReason.h"

#include <host/LibraryMemory.h>

#include <QCoreApplication>

#include <array>

#include <linux/sockios.h>
#include <sys/ioctl.h>

namespace host {

namespace {

struct CupsConnectionText {
    Q_DECLARE_TR_FUNCTIONS(host::CupsConnection)
};

/// How often the task is looked at while the server is silent, in seconds.
constexpr double lookInterval = 0.1;

/// How many bytes the system still holds that were written to the server and have not reached it.
int unsentBytes(http_t *http)
{
    int bytes = 0;
    return ioctl(httpGetFd(http), SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

/// The status as a number: a server may send one that "ipp_status_t" cannot hold.
CupsFailure failureForIpp(int status)
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

CupsFailure failureFor(http_status_t status)
{
    switch (status) {
    case HTTP_STATUS_NOT_FOUND:
    case HTTP_STATUS_GONE:
        return CupsFailure::NotFound;
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_FORBIDDEN:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return CupsFailure::NotAuthorized;
    case HTTP_STATUS_SERVICE_UNAVAILABLE:
    case HTTP_STATUS_UPGRADE_REQUIRED:
    case HTTP_STATUS_CUPS_PKI_ERROR:
        return CupsFailure::Unreachable;
    default:
        return CupsFailure::Refused;
    }
}

} // namespace

http_status_t knownStatus(int status)
{
    const bool isKnown = status >= HTTP_STATUS_ERROR && status <= HTTP_STATUS_CUPS_PKI_ERROR;
    return isKnown ? static_cast<http_status_t>(status) : HTTP_STATUS_ERROR;
}

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
    state->threadScope.emplace(server, password, state.get());
    CupsConnection connection(std::move(state));
    if (!connection.connect())
        return connection.noAnswer();
    return connection;
}

bool CupsConnection::connect()
{
    beginWaiting();
    errno = 0;
    // Encryption is switched on afterwards, when the limits on silence hold already.
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                              static_cast<int>(timeout()), m_state->task->cancelFlag()));
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

int CupsConnection::mayWaitOn(http_t *http, void *data)
{
    State &state = *static_cast<State *>(data);
    // The system takes megabytes at once that a slow link carries for a long time; a server that takes them
    // up is not silent.
    const int unsent = unsentBytes(http);
    if (unsent < state.unsent)
        state.restartSilence();
    state.unsent = unsent;
    state.wasSilent = state.hasBeenSilentTooLong();
    return !state.wasSilent && (state.finishesFirst || !state.task->isCancelled());
}

const char *CupsConnection::password(const char *prompt, http_t *, const char *, const char *, void *data)
{
    State &state = *static_cast<State *>(data);
    const PasswordRequest request(QString::fromUtf8(prompt), QString::fromUtf8(cupsUser()));
    const std::optional<PasswordRequest::Credentials> answer =
        state.server.passwords->get(request, *state.task, state.server.askPassword, state.triedPasswords);
    // Who gives up has not kept a password back.
    state.lacksPassword = !answer && !state.task->isCancelled();
    if (!answer)
        return nullptr;
    // libcups keeps no copy.
    state.credentials = *answer;
    state.threadScope->setUser(state.credentials.user);
    state.restartSilence();
    return state.credentials.password.constData();
}

bool CupsConnection::wasGivenUp() const
{
    return m_state->wasSilent || (m_state->task->isCancelled() && !m_state->finishesFirst);
}

CupsError CupsConnection::noAnswer() const
{
    const QString name = server().displayName();
    if (m_state->task->isCancelled())
        return {CupsFailure::Cancelled, CupsConnectionText::tr("Canceled on request.")};
    if (m_state->wasSilent || (!m_http && m_state->hasBeenSilentTooLong()))
        return {CupsFailure::Silent,
                CupsConnectionText::tr("The print server \"%1\" does not answer.").arg(name)};
    if (!m_http)
        return {CupsFailure::Unreachable,
                CupsConnectionText::tr("Cannot connect to the print server \"%1\": %2")
                    .arg(name, connectionFailureReason(cupsServer(), ippPort()))};
    return {CupsFailure::Unreachable,
            CupsConnectionText::tr("The connection to the print server \"%1\" broke.").arg(name)};
}

CupsError CupsConnection::lastError() const
{
    // Without an answer, libcups means the connection by an internal error, or leaves the outcome of the
    // request before.
    const int status = cupsLastError();
    const bool isRefusal = status >= IPP_STATUS_REDIRECTION_OTHER_SITE && status != IPP_STATUS_ERROR_INTERNAL;
    if (!m_http || m_state->wasSilent || m_state->task->isCancelled() || !isRefusal)
        return noAnswer();
    return serverError(failureForIpp(status), QString::fromUtf8(cupsLastErrorString()));
}

CupsError CupsConnection::passwordError() const
{
    return {CupsFailure::NotAuthorized,
            CupsConnectionText::tr(
                "The print server \"%1\" wants a password for the user \"%2\", and none was given.")
                .arg(server().displayName(), QString::fromUtf8(cupsUser()))};
}

CupsError CupsConnection::serverError(CupsFailure kind, const QString &reason) const
{
    if (m_state->lacksPassword && kind == CupsFailure::NotAuthorized)
        return passwordError();
    return {kind,
            CupsConnectionText::tr("The print server \"%1\" says: %2").arg(server().displayName(), reason)};
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
    m_state->lacksAnswer = false;
    const http_status_t status = askUntilAllowed("POST", resource, [&] {
        const http_status_t sent = knownStatus(
            cupsSendRequest(m_http.get(), request.get(), resource.constData(), ippLength(request.get())));
        // Where the answer does not come, libcups tells no request that was sent from one that was not.
        m_state->lacksAnswer = sent == HTTP_STATUS_ERROR;
        return sent == HTTP_STATUS_CONTINUE || sent == HTTP_STATUS_OK ? awaitAnswer() : sent;
    });
    return readAnswer(status);
}

Result<IppPointer, CupsError> CupsConnection::earlyAnswer()
{
    beginWaiting();
    return readAnswer(awaitAnswer());
}

Result<IppPointer, CupsError> CupsConnection::finishDocument()
{
    beginWaiting();
    // What ends a document of unknown length. If it does not get through, the server has something to say.
    httpWrite2(m_http.get(), "", 0);
    return readAnswer(awaitAnswer());
}

http_status_t CupsConnection::awaitAnswer()
{
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE)
        status = knownStatus(httpUpdate(m_http.get()));
    // The header of an answer is not all of it; a refusal is said by its header.
    m_state->lacksAnswer = status == HTTP_STATUS_ERROR || status == HTTP_STATUS_OK;
    return status;
}

ssize_t CupsConnection::readPiece(void *connection, ipp_uchar_t *buffer, std::size_t length)
{
    const CupsConnection &self = *static_cast<CupsConnection *>(connection);
    std::size_t known = 0;
    while (known < length) {
        const ssize_t read = httpRead2(self.http(), reinterpret_cast<char *>(buffer) + known, length - known);
        if (read <= 0)
            return -1;
        self.beginWaiting();
        known += static_cast<std::size_t>(read);
    }
    return static_cast<ssize_t>(known);
}

Result<IppPointer, CupsError> CupsConnection::readAnswer(http_status_t status)
{
    if (status != HTTP_STATUS_OK) {
        // What was refused has made nothing that there is to be taken back.
        if (status == HTTP_STATUS_ERROR || wasGivenUp() || m_state->task->isCancelled())
            return noAnswer();
        httpFlush(m_http.get());
        return serverError(failureFor(status), statusReason(status));
    }
    // Not ippRead(): it takes the first pause between two pieces of an answer for its end, when there is a
    // limit on silence.
    IppPointer answer(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    const LibraryMemory memory;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippReadIO(this, readPiece, 1, nullptr, answer.get());
    if (state == IPP_STATE_ERROR)
        return noAnswer();
    m_state->lacksAnswer = false;
    httpFlush(m_http.get());
    const int outcome = ippGetStatusCode(answer.get());
    if (outcome < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return answer;
    const char *const words =
        ippGetString(ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT), 0, nullptr);
    return serverError(failureForIpp(outcome),
                       QString::fromUtf8(words ? words : ippErrorString(ippGetStatusCode(answer.get()))));
}

Result<IppPointer, CupsError> CupsConnection::exchangeToTheEnd(IppPointer request, const QByteArray &resource)
{
    m_state->finishesFirst = true;
    Result<IppPointer, CupsError> answer = exchange(std::move(request), resource);
    m_state->finishesFirst = false;
    return answer;
}

http_status_t CupsConnection::askUntilAllowed(const char *method, const QByteArray &resource,
                                              const std::function<http_status_t()> &ask)
{
    // Encryption may be asked for, and a password more than once: the first one may be wrong.
    constexpr int mostAttempts = 4;
    for (int attempt = 1;; ++attempt) {
        beginWaiting();
        const http_status_t status = ask();
        const bool isRefused = status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_UPGRADE_REQUIRED;
        if (wasGivenUp() || !isRefused || attempt == mostAttempts)
            return status;
        httpFlush(m_http.get());
        if (status == HTTP_STATUS_UNAUTHORIZED &&
            cupsDoAuthentication(m_http.get(), method, resource.constData()))
            return HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        beginWaiting();
        if (httpReconnect2(m_http.get(), static_cast<int>(timeout()), m_state->task->cancelFlag()))
            return HTTP_STATUS_ERROR;
        if (status == HTTP_STATUS_UPGRADE_REQUIRED && httpEncryption(m_http.get(), HTTP_ENCRYPTION_REQUIRED))
            return HTTP_STATUS_ERROR;
    }
}

http_status_t CupsConnection::get(const QByteArray &resource, const QByteArray &unlessModifiedSince)
{
    return askUntilAllowed("GET", resource, [&] {
        httpClearFields(m_http.get());
        if (!unlessModifiedSince.isEmpty())
            httpSetField(m_http.get(), HTTP_FIELD_IF_MODIFIED_SINCE, unlessModifiedSince.constData());
        httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, httpGetAuthString(m_http.get()));
        return httpGet(m_http.get(), resource.constData()) == 0 ? awaitAnswer() : HTTP_STATUS_ERROR;
    });
}

Result<std::optional<CupsConnection::File>, CupsError>
CupsConnection::fetch(const QByteArray &resource, const QByteArray &unlessModifiedSince, qint64 mostBytes)
{
    const auto failure = [&](CupsFailure kind, const QString &reason) -> CupsError {
        return {kind, CupsConnectionText::tr("The print server \"%1\" does not give \"%2\": %3")
                          .arg(server().displayName(), QString::fromUtf8(resource), reason)};
    };
    const http_status_t status = get(resource, unlessModifiedSince);
    if (wasGivenUp() || status == HTTP_STATUS_ERROR)
        return noAnswer();
    if (status == HTTP_STATUS_NOT_MODIFIED) {
        httpFlush(m_http.get());
        return std::optional<File>();
    }
    if (status != HTTP_STATUS_OK) {
        httpFlush(m_http.get());
        const CupsFailure kind = failureFor(status);
        if (kind == CupsFailure::NotAuthorized && m_state->lacksPassword)
            return passwordError();
        return failure(kind, statusReason(status));
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
            return failure(CupsFailure::Refused,
                           CupsConnectionText::tr("it is larger than %1 MB").arg(mostBytes >> 20));
    }
    if (wasGivenUp())
        return noAnswer();
    if (length < 0 || (announced > 0 && file.content.size() != announced))
        return failure(CupsFailure::Unreachable,
                       CupsConnectionText::tr("the connection broke in the middle"));
    return std::optional(file);
}

} // namespace host
