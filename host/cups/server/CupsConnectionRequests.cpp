// SPDX-License-Identifier: Apache-2.0
// Requests, documents and their responses, written with libcups's functions for a connection. Its functions
// for whole requests reconnect and send the password by themselves, without checking the certificate.
#include "CupsConnection.h"
#include "FailureReason.h"
#include "ServerCertificate.h"

#include <QCoreApplication>

#include <array>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

struct CupsConnectionRequestsText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::server::CupsConnection)
};

/// The length that libcups uses for content whose length is not known in advance.
constexpr std::size_t unknownLength = 0;

/// The status is an int: a server may send a number that "ipp_status_t" cannot hold.
CupsErrorKind failureForIpp(int status)
{
    switch (status) {
    case IPP_STATUS_ERROR_NOT_FOUND:
    case IPP_STATUS_ERROR_GONE:
        return CupsErrorKind::NotFound;
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return CupsErrorKind::NotAuthorized;
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_CUPS_PKI:
        return CupsErrorKind::Unreachable;
    default:
        return CupsErrorKind::Rejected;
    }
}

CupsErrorKind failureFor(http_status_t status)
{
    switch (status) {
    case HTTP_STATUS_NOT_FOUND:
    case HTTP_STATUS_GONE:
        return CupsErrorKind::NotFound;
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_FORBIDDEN:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return CupsErrorKind::NotAuthorized;
    case HTTP_STATUS_SERVICE_UNAVAILABLE:
    case HTTP_STATUS_UPGRADE_REQUIRED:
    case HTTP_STATUS_CUPS_PKI_ERROR:
        return CupsErrorKind::Unreachable;
    default:
        return CupsErrorKind::Rejected;
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
    // libcups encodes the characters that a request line must not contain.
    return "/printers/" + queue.toUtf8();
}

CupsError CupsConnection::serverError(CupsErrorKind kind, const QString &reason) const
{
    if ((m_state->isPasswordMissing || m_state->isPasswordUnconfirmed) &&
        kind == CupsErrorKind::NotAuthorized)
        return passwordError();
    return {kind, CupsConnectionRequestsText::tr("The print server \"%1\" reports: %2")
                      .arg(server().displayName(), reason)};
}

IppPointer CupsConnection::newRequest(ipp_op_t operation, const std::optional<QString> &queue,
                                      std::optional<int> jobId) const
{
    IppPointer request(ippNewRequest(operation));
    if (queue)
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     queueUri(*queue).constData());
    // RFC 8011: the target of a request precedes its other attributes.
    if (jobId)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", *jobId);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

void CupsConnection::setAuthorization()
{
    const QByteArray authorization = httpGetAuthString(m_http.get());
    httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, authorization.constData());
    m_state->isPasswordUnconfirmed = m_state->isPasswordUnconfirmed || authorization.startsWith("Basic ");
    // A Kerberos ticket is valid for one request.
    if (authorization.startsWith("Negotiate"))
        httpSetAuthString(m_http.get(), nullptr, nullptr);
}

bool CupsConnection::post(ipp_t *request, const QByteArray &resource, std::size_t length)
{
    httpClearFields(m_http.get());
    httpSetField(m_http.get(), HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetLength(m_http.get(), length);
    setAuthorization();
    if (length == unknownLength && m_state->expectsContinue)
        httpSetExpect(m_http.get(), HTTP_STATUS_CONTINUE);
    // From here on, the server may have the request, unless its response shows otherwise.
    m_state->isAnswerMissing = true;
    if (httpPost(m_http.get(), resource.constData()) != 0)
        return false;
    ippSetState(request, IPP_STATE_IDLE);
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippWrite(m_http.get(), request);
    // A server that has read enough may have closed the connection; its response can still be read.
    httpFlushWrite(m_http.get());
    return true;
}

Result<IppPointer, CupsError> CupsConnection::exchange(IppPointer request, const QByteArray &resource)
{
    m_state->isAnswerMissing = false;
    // The request contains a password for the printer itself.
    if (ippFindAttribute(request.get(), "auth-info", IPP_TAG_TEXT) && m_http && isReadable(m_http.get())) {
        m_state->encryption = HTTP_ENCRYPTION_REQUIRED;
        if (!connect())
            return noAnswer();
    }
    return readAnswer(sendUntilAccepted("POST", resource, [&] {
        return post(request.get(), resource, ippLength(request.get())) ? awaitAnswer() : HTTP_STATUS_ERROR;
    }));
}

Result<void, CupsError> CupsConnection::beginDocument(IppPointer request, const QByteArray &resource)
{
    m_state->isAnswerMissing = false;
    m_state->documentResource.reset();
    const http_status_t status = sendUntilAccepted("POST", resource, [&] {
        if (!post(request.get(), resource, unknownLength))
            return HTTP_STATUS_ERROR;
        // A server that does not support "Expect" sends nothing yet.
        constexpr int maxWait = 1000; // milliseconds
        const bool mayAnswer = m_state->expectsContinue && httpWait(m_http.get(), maxWait);
        return mayAnswer ? readStatus() : HTTP_STATUS_CONTINUE;
    });
    m_state->earlyStatus.reset();
    if (status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_OK)
        return readAnswer(status).error();
    m_state->documentResource = resource;
    if (status == HTTP_STATUS_OK)
        m_state->earlyStatus = status;
    return {};
}

bool CupsConnection::writeDocument(const QByteArray &piece)
{
    if (m_state->earlyStatus)
        return false;
    beginWaiting();
    if (httpWrite2(m_http.get(), piece.constData(), static_cast<std::size_t>(piece.size())) < 0)
        return false;
    if (!httpWait(m_http.get(), 0))
        return true;
    const http_status_t status = readStatus();
    if (status != HTTP_STATUS_CONTINUE)
        m_state->earlyStatus = status;
    return status == HTTP_STATUS_CONTINUE;
}

Result<IppPointer, CupsError> CupsConnection::earlyAnswer()
{
    beginWaiting();
    return readDocumentAnswer(m_state->earlyStatus ? *m_state->earlyStatus : awaitAnswer());
}

Result<IppPointer, CupsError> CupsConnection::finishDocument()
{
    if (m_state->earlyStatus)
        return earlyAnswer();
    beginWaiting();
    // Ends a document of unknown length. If this cannot be sent, the server has already responded.
    httpWrite2(m_http.get(), "", 0);
    return readDocumentAnswer(awaitAnswer());
}

Result<IppPointer, CupsError> CupsConnection::readDocumentAnswer(http_status_t status)
{
    noteStatus(status);
    if (status == HTTP_STATUS_UNAUTHORIZED) {
        m_state->isPasswordMissing = !m_state->isPasswordUnconfirmed;
        m_state->isPasswordReadable = false;
    }
    return readAnswer(status);
}

bool CupsConnection::documentNeedsPassword() const
{
    return m_http && m_state->documentResource && !isCanceledOrTimedOut() &&
           httpGetStatus(m_http.get()) == HTTP_STATUS_UNAUTHORIZED;
}

Result<void, CupsError> CupsConnection::authenticateDocument()
{
    if (!meetRequirement(HTTP_STATUS_UNAUTHORIZED, "POST", m_state->documentResource.value()))
        return serverError(CupsErrorKind::NotAuthorized,
                           QString::fromUtf8(httpStatus(HTTP_STATUS_UNAUTHORIZED)));
    if (!reconnect())
        return noAnswer();
    return {};
}

http_status_t CupsConnection::readStatus()
{
    const http_status_t status = knownStatus(httpUpdate(m_http.get()));
    // A successful response does not end with its header; an error is complete with its header.
    m_state->isAnswerMissing =
        status == HTTP_STATUS_ERROR || status == HTTP_STATUS_OK || status == HTTP_STATUS_CONTINUE;
    return status;
}

http_status_t CupsConnection::awaitAnswer()
{
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE)
        status = readStatus();
    return status;
}

ssize_t CupsConnection::readPiece(void *connection, ipp_uchar_t *buffer, std::size_t length)
{
    const CupsConnection &self = *static_cast<CupsConnection *>(connection);
    std::size_t known = 0;
    while (known < length) {
        const ssize_t read =
            httpRead2(self.m_http.get(), reinterpret_cast<char *>(buffer) + known, length - known);
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
        // A rejected request has created nothing that has to be canceled.
        if (status == HTTP_STATUS_ERROR || isCanceledOrTimedOut() || m_state->task->isCanceled())
            return noAnswer();
        httpFlush(m_http.get());
        return serverError(failureFor(status), statusReason(status));
    }
    // Not ippRead(): when a timeout is set, it reads the first pause between two parts of a response as its
    // end.
    IppPointer answer(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippReadIO(this, readPiece, 1, nullptr, answer.get());
    if (state == IPP_STATE_ERROR)
        return noAnswer();
    m_state->isAnswerMissing = false;
    httpFlush(m_http.get());
    const int outcome = ippGetStatusCode(answer.get());
    if (outcome < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return answer;
    const char *const words =
        ippGetString(ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT), 0, nullptr);
    return serverError(failureForIpp(outcome),
                       QString::fromUtf8(words ? words : ippErrorString(ippGetStatusCode(answer.get()))));
}

Result<IppPointer, CupsError> CupsConnection::exchangeUncancelable(IppPointer request,
                                                                   const QByteArray &resource)
{
    m_state->ignoresCancellation = true;
    Result<IppPointer, CupsError> answer = exchange(std::move(request), resource);
    m_state->ignoresCancellation = false;
    return answer;
}

http_status_t CupsConnection::get(const QByteArray &resource,
                                  const std::optional<QByteArray> &unlessModifiedSince)
{
    return sendUntilAccepted("GET", resource, [&] {
        httpClearFields(m_http.get());
        if (unlessModifiedSince)
            httpSetField(m_http.get(), HTTP_FIELD_IF_MODIFIED_SINCE, unlessModifiedSince->constData());
        setAuthorization();
        return httpGet(m_http.get(), resource.constData()) == 0 ? awaitAnswer() : HTTP_STATUS_ERROR;
    });
}

Result<std::optional<CupsConnection::File>, CupsError>
CupsConnection::fetch(const QByteArray &resource, const std::optional<QByteArray> &unlessModifiedSince,
                      qint64 maxBytes)
{
    const auto failure = [&](CupsErrorKind kind, const QString &reason) -> CupsError {
        return {kind, CupsConnectionRequestsText::tr("Cannot fetch \"%2\" from the print server \"%1\": %3")
                          .arg(server().displayName(), QString::fromUtf8(resource), reason)};
    };
    const http_status_t status = get(resource, unlessModifiedSince);
    if (isCanceledOrTimedOut() || status == HTTP_STATUS_ERROR)
        return noAnswer();
    if (status == HTTP_STATUS_NOT_MODIFIED) {
        httpFlush(m_http.get());
        return std::optional<File>();
    }
    if (status != HTTP_STATUS_OK) {
        httpFlush(m_http.get());
        const CupsErrorKind kind = failureFor(status);
        if (kind == CupsErrorKind::NotAuthorized &&
            (m_state->isPasswordMissing || m_state->isPasswordUnconfirmed))
            return passwordError();
        return failure(kind, statusReason(status));
    }
    File file;
    const char *const modified = httpGetField(m_http.get(), HTTP_FIELD_LAST_MODIFIED);
    if (*modified)
        file.modified = httpGetDateTime(modified);
    const bool chunked = *httpGetField(m_http.get(), HTTP_FIELD_TRANSFER_ENCODING) != 0;
    const off_t announced = chunked ? 0 : httpGetLength2(m_http.get());
    std::array<char, 32768> piece = {};
    ssize_t length = 0;
    while (beginWaiting(), (length = httpRead2(m_http.get(), piece.data(), piece.size())) > 0) {
        file.content.append(piece.data(), length);
        if (file.content.size() > maxBytes)
            return failure(CupsErrorKind::Rejected,
                           CupsConnectionRequestsText::tr("it is larger than %1 MB").arg(maxBytes >> 20));
    }
    if (isCanceledOrTimedOut())
        return noAnswer();
    if (length < 0 || (announced > 0 && file.content.size() != announced))
        return failure(CupsErrorKind::Unreachable, CupsConnectionRequestsText::tr("the connection was lost"));
    return std::optional(file);
}

} // namespace server
} // namespace cups
} // namespace host
