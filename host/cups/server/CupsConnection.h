// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Background.h"
#include "CupsServer.h"
#include "CupsThreadScope.h"

#include <cups/cups.h>

#include <functional>
#include <memory>

namespace host {

struct IppDelete {
    void operator()(ipp_t *message) const { ippDelete(message); }
};
/// Owns an IPP request or answer.
using IppPointer = std::unique_ptr<ipp_t, IppDelete>;

struct HttpClose {
    void operator()(http_t *http) const { httpClose(http); }
};
/// Owns a connection of libcups.
using HttpPointer = std::unique_ptr<http_t, HttpClose>;

/// A connection to a CUPS server for one task in the background. It gives up as soon as the task is
/// cancelled, or when the server has been silent for longer than the server's timeout, neither saying nor
/// taking anything; libcups alone would wait for a minute and more.
class CupsConnection {
public:
    /// Connects; must be called on the task's thread, whose libcups settings the connection owns until it is
    /// destroyed, on the same thread. The task must outlive the connection.
    static Result<CupsConnection, CupsError> open(const CupsServer &server, BackgroundTask &task);

    const CupsServer &server() const { return m_state->server; }

    /// A request of this operation with the fields that every request has, for a queue's or the server's
    /// own address, or for a job of the queue.
    IppPointer newRequest(ipp_op_t operation, const QString &queue = {}, std::optional<int> jobId = {}) const;
    /// Sends the request and waits for the answer. An answer that refuses is an error, which says what the
    /// server said.
    Result<IppPointer, CupsError> exchange(IppPointer request, const QByteArray &resource);

    /// The same for a request that makes something on the server: it is not given up when the task is
    /// cancelled, since only the answer tells what there is to be taken back.
    Result<IppPointer, CupsError> exchangeToTheEnd(IppPointer request, const QByteArray &resource);

    /// Whether the last request was sent, or most of it, and no whole answer came: the server may have done
    /// what it says.
    bool lacksAnswer() const { return m_state->lacksAnswer; }

    /// Begins to send a document: sends the request that it belongs to, and waits for a moment whether the
    /// server wants something first, such as a password. Nothing when the document may follow, or why it may
    /// not.
    std::optional<CupsError> beginDocument(IppPointer request, const QByteArray &resource);
    /// Sends a piece of the document. False when the server has answered already or the connection is
    /// broken; earlyAnswer() returns the answer or says so.
    bool writeDocument(const QByteArray &piece);
    /// Ends the document and waits for the answer.
    Result<IppPointer, CupsError> finishDocument();
    /// The answer that came, or may have come, before the whole document was sent. No end of the document is
    /// sent first, lest the server prints the half of it.
    Result<IppPointer, CupsError> earlyAnswer();
    /// Whether the server has refused the document for want of a password after it was begun.
    bool lacksPasswordForDocument() const;
    /// Asks for that password. Nothing when the document may be sent again from its beginning, or why it may
    /// not.
    std::optional<CupsError> authenticateDocument();

    /// Fetches a file of the server into memory. Not more than that many bytes; what is longer is refused.
    /// Nothing when it has not changed since the date and length, as they stand in a "If-Modified-Since"
    /// field.
    struct File {
        QByteArray content;
        /// Seconds since 1970; 0 when the server does not tell.
        qint64 modified = 0;
    };
    Result<std::optional<File>, CupsError> fetch(const QByteArray &resource,
                                                 const QByteArray &unlessModifiedSince, qint64 mostBytes);

    /// Why there was no answer: given up, silent, broken, or never connected.
    CupsError noAnswer() const;

private:
    /// What callbacks of libcups get to see; stays where it is when the connection is moved.
    struct State {
        void restartSilence() { heard = server.clock(); }
        bool hasBeenSilentTooLong() const { return server.clock() - heard > server.timeout; }

        CupsServer server;
        BackgroundTask *task = nullptr;
        /// When the server last sent or took something, or was asked.
        std::chrono::steady_clock::time_point heard;
        /// The bytes on their way to the server when it was last looked at.
        int unsent = 0;
        bool wasSilent = false;
        /// What is on its way is waited for even when the task is cancelled.
        bool finishesFirst = false;
        bool lacksAnswer = false;
        /// Where the document goes that is being sent; empty when there is none.
        QByteArray documentResource;
        /// The server has answered before the whole document was sent.
        std::optional<http_status_t> earlyStatus;
        /// Whether the server says that it is ready for a document ("Expect: 100-continue").
        bool expectsContinue = true;
        /// What the connection needs at least; a server may require encryption later than at the beginning.
        http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED;
        int triedPasswords = 0;
        /// The server wants a password and was sent none.
        bool lacksPassword = false;
        /// None was sent because others on the network could have read it.
        bool wouldBeReadable = false;
        /// The last request had a password, which the server has not accepted so far.
        bool isPasswordUnconfirmed = false;
        /// How many passwords in a row were refused.
        int refusedPasswords = 0;
        /// Why the server is not trusted.
        std::optional<CupsError> certificateError;
        PasswordRequest::Credentials credentials;
        /// Its callback's data is this state.
        std::optional<CupsThreadScope> threadScope;
    };

    explicit CupsConnection(std::unique_ptr<State> state)
        : m_state(std::move(state))
    {
    }

    /// In milliseconds.
    qint64 timeout() const { return server().timeout.count(); }
    bool wasGivenUp() const;
    CupsError serverError(CupsFailure kind, const QString &reason) const;
    CupsError passwordError() const;
    /// Starts counting the server's silence anew.
    void beginWaiting() const
    {
        m_state->restartSilence();
        m_state->wasSilent = false;
    }
    /// Connects and checks the server's certificate before anything is sent.
    bool connect();
    /// The same again, with the password or what else the server is to get.
    bool reconnect();
    /// Reconnects when the server has closed the connection or libcups would do so.
    bool prepare();
    /// Whether the connection is to this machine, not encrypted, or encrypted with a trusted certificate;
    /// certificateError says why not.
    bool isTrusted();
    /// Nothing when the certificate is trusted; asks the user if need be.
    std::optional<CupsError> checkCertificate() const;
    /// What an answer says about the password of its request.
    void noteStatus(http_status_t status);
    /// Does what the server wants before it takes the request: a password, encryption. The request may be
    /// sent again over a new connection then; false when the server wants nothing of the kind, or does not
    /// get it.
    bool clearTheWay(http_status_t status, const char *method, const QByteArray &resource);
    http_status_t askUntilAllowed(const char *method, const QByteArray &resource,
                                  const std::function<http_status_t()> &ask);
    void setAuthorization();
    bool post(ipp_t *request, const QByteArray &resource, std::size_t length);
    http_status_t readStatus();
    http_status_t awaitAnswer();
    Result<IppPointer, CupsError> readAnswer(http_status_t status);
    Result<IppPointer, CupsError> readDocumentAnswer(http_status_t status);
    static ssize_t readPiece(void *connection, ipp_uchar_t *buffer, std::size_t length);
    http_status_t get(const QByteArray &resource, const QByteArray &unlessModifiedSince);
    static int mayWaitOn(http_t *http, void *state);
    static const char *password(const char *prompt, http_t *http, const char *method, const char *resource,
                                void *state);

    std::unique_ptr<State> m_state;
    HttpPointer m_http;
};

/// The status of an answer as libcups returns it. A server may send any number: one that cannot be a status
/// of HTTP counts as no answer.
http_status_t knownStatus(int status);

/// The address of a queue or class on whatever server it is sent to.
QByteArray queueUri(const QString &queue);
/// Where requests about a queue are sent.
QByteArray queueResource(const QString &queue);

} // namespace host
