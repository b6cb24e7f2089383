// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundTask.h"
#include "CupsServer.h"
#include "CupsThreadScope.h"
#include "ServerAddresses.h"

#include <cups/cups.h>

#include <functional>
#include <memory>

namespace host {
inline namespace cups {
inline namespace server {

/// The deleter of IppPointer.
struct IppDelete {
    void operator()(ipp_t *message) const { ippDelete(message); }
};
/// Owns an IPP request or response.
using IppPointer = std::unique_ptr<ipp_t, IppDelete>;

/// The deleter of HttpPointer.
struct HttpClose {
    void operator()(http_t *http) const { httpClose(http); }
};
/// Owns a libcups connection.
using HttpPointer = std::unique_ptr<http_t, HttpClose>;

/// A connection to a CUPS server for one background task. Requests fail as soon as the task is canceled, or
/// when the server has neither sent nor received any data for longer than its timeout; libcups alone would
/// wait for a minute or more.
class CupsConnection {
public:
    /// Connects to the server. Must be called on the task's thread. The connection owns the libcups settings
    /// of this thread until it is destroyed, on the same thread. The task is borrowed and must outlive the
    /// connection.
    static Result<CupsConnection, CupsError> open(const CupsServer &server, BackgroundTask &task);

    /// The server that was passed to open().
    const CupsServer &server() const { return m_state->server; }

    /// Returns a request for the operation with the attributes that every request has: for the server itself,
    /// for a queue, or for a job of the queue.
    IppPointer newRequest(ipp_op_t operation, const std::optional<QString> &queue = {},
                          std::optional<int> jobId = {}) const;
    /// Sends the request and waits for the response. A response with an error status is an error, with the
    /// server's message.
    Result<IppPointer, CupsError> exchange(IppPointer request, const QByteArray &resource);

    /// Like exchange(), for a request that creates something on the server: canceling the task does not
    /// interrupt it, because only the response identifies what has to be canceled. The end of the program
    /// does interrupt it.
    Result<IppPointer, CupsError> exchangeUncancelable(IppPointer request, const QByteArray &resource);

    /// Returns whether the last request, or most of it, was sent and no complete response was received: the
    /// server may have processed the request.
    bool isAnswerMissing() const { return m_state->isAnswerMissing; }

    /// Starts sending a document: sends its request, and waits for up to a second whether the server requires
    /// something first, such as a password. Returns no value if the document can follow, otherwise the error.
    Result<void, CupsError> beginDocument(IppPointer request, const QByteArray &resource);
    /// Sends a part of the document. Returns false if the server has already responded or the connection is
    /// broken; earlyAnswer() then returns the response or the error.
    bool writeDocument(const QByteArray &piece);
    /// Ends the document and waits for the response.
    Result<IppPointer, CupsError> finishDocument();
    /// Returns the response that was received, or may have been received, before the whole document was sent.
    /// Does not send the end of the document first, so that the server does not print a part of it.
    Result<IppPointer, CupsError> earlyAnswer();
    /// Returns whether the server has rejected the document after it was started, because a password is
    /// missing.
    bool documentNeedsPassword() const;
    /// Requests that password. Returns no value if the document can be sent again from its beginning,
    /// otherwise the error.
    Result<void, CupsError> authenticateDocument();

    /// A file of the server.
    struct File {
        QByteArray content;
        /// Seconds since 1970-01-01 UTC; absent if the server does not report it.
        std::optional<qint64> modified = {};
    };
    /// Fetches a file of the server into memory. A file of more than maxBytes bytes is an error. Returns no
    /// value if the file has not changed since the date and length in unlessModifiedSince, the value of an
    /// "If-Modified-Since" field; if that is absent, always fetches the file.
    Result<std::optional<File>, CupsError>
    fetch(const QByteArray &resource, const std::optional<QByteArray> &unlessModifiedSince, qint64 maxBytes);

    /// Returns the error of a request that was canceled.
    static CupsError canceledError();
    /// Returns why there is no response: canceled, timed out, connection broken, or not connected.
    CupsError noAnswer() const;

private:
    /// The data of libcups callbacks; its address does not change when the connection is moved.
    struct State {
        void restartSilence() { heard = server.clock(); }
        bool isInterrupted() const
        {
            return task->isCanceled() && (!ignoresCancellation || task->isProgramEnding());
        }
        bool hasBeenSilentTooLong() const { return server.clock() - heard > server.timeout; }

        CupsServer server;
        BackgroundTask *task = nullptr;
        /// When the server last sent or received data, or when waiting for it started.
        std::chrono::steady_clock::time_point heard;
        /// The bytes in the socket's send queue at the last check.
        int unsent = 0;
        bool wasSilent = false;
        /// Canceling the task does not interrupt the current request.
        bool ignoresCancellation = false;
        bool isAnswerMissing = false;
        /// The resource to which the document is being sent; absent if there is no document.
        std::optional<QByteArray> documentResource;
        /// The status of a response that was received before the whole document was sent.
        std::optional<http_status_t> earlyStatus;
        /// Whether the server confirms that it is ready for a document ("Expect: 100-continue").
        bool expectsContinue = true;
        /// The minimum encryption; a server may require encryption later than at the start.
        http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED;
        int triedPasswords = 0;
        /// The server requires a password and none was sent.
        bool isPasswordMissing = false;
        /// No password was sent because others on the network could have read it.
        bool isPasswordReadable = false;
        /// The last request had a password that the server has not accepted so far.
        bool isPasswordUnconfirmed = false;
        /// The number of passwords that the server has rejected in succession.
        int rejectedPasswords = 0;
        ServerAddresses addresses;
        /// Why the server's addresses are not known; absent if they are.
        std::optional<QString> lookupError;
        /// Why the server is not trusted; absent if it is.
        std::optional<CupsError> certificateError;
        PasswordRequest::Credentials credentials;
        /// The data of its password callback is this state.
        std::optional<CupsThreadScope> threadScope;
    };

    explicit CupsConnection(std::unique_ptr<State> state)
        : m_state(std::move(state))
    {
    }

    /// The server's timeout in milliseconds.
    qint64 timeout() const { return server().timeout.count(); }
    /// Whether waiting has ended because of the timeout or because the task is canceled.
    bool isCanceledOrTimedOut() const;
    /// Returns an error with the server's message; passwordError() if the password is the reason.
    CupsError serverError(CupsErrorKind kind, const QString &reason) const;
    CupsError passwordError() const;
    /// Restarts the measurement of the server's silence.
    void beginWaiting() const
    {
        m_state->restartSilence();
        m_state->wasSilent = false;
    }
    /// Finds the server's addresses.
    bool lookUp();
    /// Connects, and checks the server's certificate before anything is sent.
    bool connect();
    /// Connects again, with the password or the other credentials for the server.
    bool reconnect();
    /// Reconnects if the server has closed the connection or libcups would reconnect.
    bool prepare();
    /// Returns whether the connection is to this machine, not encrypted, or encrypted with a trusted
    /// certificate; otherwise, certificateError describes why not.
    bool isTrusted();
    /// Returns no value if the certificate is trusted, otherwise the error. Asks the user if necessary.
    Result<void, CupsError> checkCertificate() const;
    /// Updates the state of the password from the status of a response.
    void noteStatus(http_status_t status);
    /// Meets the server's requirements for the request: a password, encryption. Returns true if the request
    /// can be sent again over a new connection; false if the server requires nothing of this kind, or the
    /// requirement is not met.
    bool meetRequirement(http_status_t status, const char *method, const QByteArray &resource);
    /// Sends a request with the function ask, and again after each requirement of the server is met. Returns
    /// the last status.
    http_status_t sendUntilAccepted(const char *method, const QByteArray &resource,
                                    const std::function<http_status_t()> &ask);
    void setAuthorization();
    bool post(ipp_t *request, const QByteArray &resource, std::size_t length);
    http_status_t readStatus();
    http_status_t awaitAnswer();
    Result<IppPointer, CupsError> readAnswer(http_status_t status);
    Result<IppPointer, CupsError> readDocumentAnswer(http_status_t status);
    static ssize_t readPiece(void *connection, ipp_uchar_t *buffer, std::size_t length);
    http_status_t get(const QByteArray &resource, const std::optional<QByteArray> &unlessModifiedSince);
    static int mayWaitOn(http_t *http, void *state);
    static const char *password(const char *prompt, http_t *http, const char *method, const char *resource,
                                void *state);

    std::unique_ptr<State> m_state;
    HttpPointer m_http;
};

/// Converts the status of a response, as libcups returns it. A server may send any number: a number that is
/// not an HTTP status counts as no response (HTTP_STATUS_ERROR).
http_status_t knownStatus(int status);

/// Returns the URI of a queue or class, as valid on any server that receives it.
QByteArray queueUri(const QString &queue);
/// Returns the resource to which requests about a queue are sent.
QByteArray queueResource(const QString &queue);

} // namespace server
} // namespace cups
} // namespace host
