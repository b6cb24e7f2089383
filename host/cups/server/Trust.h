// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Reply.h"

#include <QSet>
#include <QString>

#include <functional>

namespace host {
inline namespace cups {
inline namespace server {

/// A question to the user about the security of a connection to a print server on another machine, shown on
/// the main thread while the thread of the connection waits. Copies share their state; only the first answer
/// counts.
class TrustRequest {
public:
    /// What the question is about.
    enum class Subject {
        Certificate,      ///< the server's certificate is not verified: is it the right one?
        ReadablePassword, ///< may a password be sent over a connection that is not encrypted?
    };

    /// Asks whether to trust a certificate. fingerprint is the result of ServerCertificate::fingerprint(),
    /// reason that of its verificationError().
    static TrustRequest certificate(const QString &server, const QString &fingerprint, const QString &reason);
    /// Asks whether to send a password over a connection that is not encrypted.
    static TrustRequest readablePassword(const QString &server);

    /// What the user is asked about.
    Subject subject() const { return m_subject; }
    /// The server's name, as CupsServer::displayName() returns it.
    const QString &server() const { return m_server; }
    /// The fingerprint of the certificate; empty for other subjects.
    const QString &fingerprint() const { return m_fingerprint; }
    /// Why the certificate is not verified; empty for other subjects.
    const QString &reason() const { return m_reason; }

    /// Grants or declines the request.
    void grant() const { m_reply.give(true); }
    void reject() const { m_reply.give(std::nullopt); }
    /// Waits for the answer, on the thread of the connection. Returns whether the user grants it; false if
    /// the task is canceled.
    bool wait(const BackgroundTask &task) const { return m_reply.wait(task).value_or(false); }

private:
    TrustRequest(Subject subject, QString server, QString fingerprint, QString reason);

    Subject m_subject;
    QString m_server;
    QString m_fingerprint;
    QString m_reason;
    Reply<bool> m_reply;
};

/// Shows the question to the user, who answers it immediately or later.
using TrustHandler = std::function<void(const TrustRequest &)>;

/// The user's answers about print servers, until the program ends. An answer applies to the server and the
/// certificate of the question. Several threads use a server at the same time: they share this memory, and
/// one at a time asks the user.
class TrustMemory {
public:
    /// Returns whether the user grants or has granted the request; the function ask shows the question to the
    /// user. A question that was declined is not asked again.
    bool isGranted(const TrustRequest &request, const BackgroundTask &task, const TrustHandler &ask);
    /// Starts a new action of the user, who may be asked again after declining.
    void resetRefusals();

private:
    std::mutex m_mutex;
    std::condition_variable_any m_answered;
    bool m_isAsking = false;
    /// The identifiers of the answered questions; see Trust.cpp.
    QSet<QString> m_granted;
    QSet<QString> m_rejected;
};

} // namespace server
} // namespace cups
} // namespace host
