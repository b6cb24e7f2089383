// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Reply.h"

#include <QSet>
#include <QString>

#include <functional>

namespace host {

/// A question to the user about the safety of a connection to a print server on another machine, put on the
/// main thread while the thread that talks to the server waits. Copies are the same question; the first
/// answer counts.
class TrustRequest {
public:
    enum class Subject {
        Certificate,      ///< the server's certificate is not verified: is it the right one?
        ReadablePassword, ///< may a password be sent over a connection that is not encrypted?
    };

    /// fingerprint as ServerCertificate::fingerprint() returns it; reason as its verificationError() does.
    static TrustRequest certificate(const QString &server, const QString &fingerprint, const QString &reason);
    static TrustRequest readablePassword(const QString &server);

    Subject subject() const { return m_subject; }
    /// The server's name, as CupsServer::displayName() gives it.
    const QString &server() const { return m_server; }
    /// Of a certificate; empty otherwise.
    const QString &fingerprint() const { return m_fingerprint; }
    /// Why the certificate is not verified; empty otherwise.
    const QString &reason() const { return m_reason; }

    /// The user's answer.
    void grant() const { m_reply.give(true); }
    void refuse() const { m_reply.give(std::nullopt); }
    /// For the waiting thread: whether the user has granted it; false when the task was cancelled.
    bool wait(const BackgroundTask &task) const { return m_reply.wait(task).value_or(false); }

private:
    TrustRequest(Subject subject, QString server, QString fingerprint, QString reason);

    Subject m_subject;
    QString m_server;
    QString m_fingerprint;
    QString m_reason;
    Reply<bool> m_reply;
};

/// Shows the question to the user, who answers it now or later.
using TrustHandler = std::function<void(const TrustRequest &)>;

/// The user's answers about print servers, for the rest of the program's life. An answer holds for the server
/// and the certificate that were asked about. Several threads talk to a server at once; they share the
/// memory, and one of them at a time asks the user.
class TrustMemory {
public:
    /// Whether the user grants or has granted it; ask puts the question to the user. A question that was
    /// refused is not asked again.
    bool isGranted(const TrustRequest &request, const BackgroundTask &task, const TrustHandler &ask);
    /// Begins a new action of the user, who may be asked again after a refusal.
    void forgetRefusals();

private:
    std::mutex m_mutex;
    std::condition_variable m_answered;
    bool m_isAsking = false;
    /// What identifies each question that was answered; see Trust.cpp.
    QSet<QString> m_granted;
    QSet<QString> m_refused;
};

} // namespace host
