// SPDX-License-Identifier: Apache-2.0
// Certificates, passwords and encryption: what a server requires before it accepts a request.
#include "CupsConnection.h"
#include "ServerCertificate.h"

#include <QCoreApplication>

#include <utility>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

struct CupsConnectionTrustText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::server::CupsConnection)
};

} // namespace

http_status_t CupsConnection::sendUntilAccepted(const char *method, const QByteArray &resource,
                                                const std::function<http_status_t()> &ask)
{
    // More attempts than encryption, the credentials of libcups's own and all passwords together need.
    constexpr int maxAttempts = 20;
    m_state->isPasswordMissing = false;
    for (int attempt = 1;; ++attempt) {
        if (!prepare())
            return HTTP_STATUS_ERROR;
        const http_status_t status = ask();
        noteStatus(status);
        if (isCanceledOrTimedOut() || attempt == maxAttempts || !meetRequirement(status, method, resource))
            return status;
        if (!reconnect())
            return HTTP_STATUS_ERROR;
    }
}

void CupsConnection::noteStatus(http_status_t status)
{
    // Any other status means that the server has accepted the password, except "Continue": the server may not
    // have read the whole request.
    if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_CONTINUE)
        m_state->isPasswordUnconfirmed = false;
}

bool CupsConnection::meetRequirement(http_status_t status, const char *method, const QByteArray &resource)
{
    switch (status) {
    case HTTP_STATUS_UNAUTHORIZED:
        return cupsDoAuthentication(m_http.get(), method, resource.constData()) == 0;
    case HTTP_STATUS_UPGRADE_REQUIRED:
        return std::exchange(m_state->encryption, HTTP_ENCRYPTION_REQUIRED) < HTTP_ENCRYPTION_REQUIRED;
    case HTTP_STATUS_EXPECTATION_FAILED:
        return std::exchange(m_state->expectsContinue, false);
    default:
        return false;
    }
}

bool CupsConnection::isTrusted()
{
    m_state->certificateError.reset();
    if (!httpIsEncrypted(m_http.get()) || isToThisMachine(m_http.get()))
        return true;
    const Result<void, CupsError> checked = checkCertificate();
    if (!checked)
        m_state->certificateError = checked.error();
    // The user's time to answer does not count as the server's silence.
    beginWaiting();
    return static_cast<bool>(checked);
}

Result<void, CupsError> CupsConnection::checkCertificate() const
{
    const auto untrusted = [](const QString &message) {
        return CupsError{CupsErrorKind::Untrusted, message};
    };
    const QString name = server().displayName();
    const std::optional<ServerCertificate> certificate = ServerCertificate::of(m_http.get());
    if (!certificate)
        return untrusted(
            CupsConnectionTrustText::tr("The print server \"%1\" has no certificate.").arg(name));
    const std::optional<QString> reason = certificate->verificationError();
    if (!reason)
        return {};
    const QString fingerprint = certificate->fingerprint();
    const std::optional<QByteArray> trusted = certificate->trusted(server().certificates);
    if (trusted && *trusted != certificate->der())
        return untrusted(
            CupsConnectionTrustText::tr(
                "The certificate of the print server \"%1\" is not the one that is trusted for this host. "
                "The "
                "trusted one has the SHA-256 fingerprint %2, the server's has %3. The server's certificate "
                "may "
                "have been replaced, another print server may run on the same host, or someone may be "
                "intercepting the connection. If the server's administrator confirms the fingerprint, remove "
                "the file \"%4\" and try again.")
                .arg(name, ServerCertificate::fingerprintOf(*trusted), fingerprint,
                     certificate->path(server().certificates)));
    if (const std::optional<QString> error = certificate->policyError())
        return untrusted(CupsConnectionTrustText::tr("The certificate of the print server \"%1\" with the "
                                                     "SHA-256 fingerprint %2 cannot be trusted: %3")
                             .arg(name, fingerprint, *error));
    if (trusted)
        return {};
    const auto request = TrustRequest::certificate(name, fingerprint, *reason);
    if (!server().trust->isGranted(request, *m_state->task, server().askTrust))
        return untrusted(CupsConnectionTrustText::tr(
                             "The certificate of the print server \"%1\" is not trusted: %2. Its SHA-256 "
                             "fingerprint is %3. Compare it with the fingerprint that the server's "
                             "administrator gives you, and confirm it in the dialog or on a terminal.")
                             .arg(name, *reason, fingerprint));
    // A certificate that cannot be saved is trusted until the program ends.
    certificate->save(server().certificates);
    return {};
}

const char *CupsConnection::password(const char *prompt, http_t *http, const char *, const char *, void *data)
{
    State &state = *static_cast<State *>(data);
    const auto trust = TrustRequest::readablePassword(state.server.displayName());
    state.isPasswordReadable =
        isReadable(http) && !state.server.trust->isGranted(trust, *state.task, state.server.askTrust);
    state.isPasswordMissing = state.isPasswordReadable && !state.task->isCanceled();
    if (state.isPasswordReadable)
        return nullptr;
    constexpr int maxPasswords = 3;
    state.rejectedPasswords = state.isPasswordUnconfirmed ? state.rejectedPasswords + 1 : 0;
    if (state.rejectedPasswords >= maxPasswords) {
        state.server.passwords->reject(state.triedPasswords);
        return nullptr;
    }
    QString text = QString::fromUtf8(prompt);
    if (state.isPasswordUnconfirmed)
        text.prepend(CupsConnectionTrustText::tr("The user name or the password is wrong.") + u'\n');
    else
        state.triedPasswords = 0; // a password that was accepted before is sent again
    const std::optional<PasswordRequest::Credentials> answer =
        state.server.passwords->get(PasswordRequest(text, QString::fromUtf8(cupsUser())), *state.task,
                                    state.server.askPassword, state.triedPasswords);
    // Canceling the task does not count as the user's declining.
    state.isPasswordMissing = !answer && !state.task->isCanceled();
    if (!answer)
        return nullptr;
    // libcups does not copy the password.
    state.credentials = *answer;
    state.isPasswordUnconfirmed = true;
    state.threadScope->setUser(state.credentials.user);
    state.restartSilence();
    return state.credentials.password.constData();
}

CupsError CupsConnection::passwordError() const
{
    const QString name = server().displayName();
    const QString user = QString::fromUtf8(cupsUser());
    if (m_state->isPasswordMissing && m_state->isPasswordReadable)
        return {CupsErrorKind::NotAuthorized,
                CupsConnectionTrustText::tr(
                    "The print server \"%1\" requires a password for the user \"%2\". None was sent, because "
                    "the connection is not encrypted and others could read it. Encrypt the connection (-E), "
                    "or confirm the question in the dialog or on a terminal.")
                    .arg(name, user)};
    if (m_state->isPasswordUnconfirmed)
        return {CupsErrorKind::NotAuthorized,
                CupsConnectionTrustText::tr(
                    "The print server \"%1\" does not accept the password of the user \"%2\".")
                    .arg(name, user)};
    return {CupsErrorKind::NotAuthorized,
            CupsConnectionTrustText::tr(
                "The print server \"%1\" requires a password for the user \"%2\", and none was entered.")
                .arg(name, user)};
}

} // namespace server
} // namespace cups
} // namespace host
