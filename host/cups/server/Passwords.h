// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Reply.h"

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <functional>

namespace host {
inline namespace cups {
inline namespace server {

/// A server's request for a password, shown to the user on the main thread while the thread of the connection
/// waits. Copies share their state; only the first answer counts.
class PasswordRequest {
public:
    /// prompt is the text of the server's prompt, user the user whose password is requested.
    PasswordRequest(QString prompt, QString user);

    /// The text of the server's prompt.
    const QString &prompt() const { return m_prompt; }
    /// The user whose password is requested.
    const QString &user() const { return m_user; }

    /// Answers the request; the user name may differ from user().
    void answer(const QString &user, const QString &password) const;
    /// Declines the request: the user enters no password.
    void reject() const;

    /// A user name and its password, in UTF-8.
    struct Credentials {
        QByteArray user;
        QByteArray password;
    };
    /// Waits for the answer, on the thread of the connection. Returns no value if the user declines or the
    /// task is canceled.
    std::optional<Credentials> wait(const BackgroundTask &task) const { return m_reply.wait(task); }

private:
    QString m_prompt;
    QString m_user;
    Reply<Credentials> m_reply;
};

/// Shows the request to the user and ensures that it is answered or declined, immediately or later.
using PasswordHandler = std::function<void(const PasswordRequest &)>;

/// The passwords that the user has entered for a server, until the program ends. Several threads use a server
/// at the same time: they share this memory, and one at a time asks the user.
class PasswordMemory {
public:
    /// Returns the password for the request, which the function ask shows to the user; no value if the user
    /// declines or has declined. While another thread asks, this thread waits for that answer and uses it.
    /// Does not return a password again that this thread has tried without success; tried is the count of the
    /// last one, initially 0.
    std::optional<PasswordRequest::Credentials>
    get(const PasswordRequest &request, const BackgroundTask &task, const PasswordHandler &ask, int &tried);
    /// Records that the server has rejected the password with this count, and those before it. The password
    /// is not sent again and the user is not asked again, as if the user had declined, unless there is a
    /// newer password.
    void reject(int tried);
    /// Starts a new action of the user, who may be asked again after declining.
    void resetRefusal();

private:
    bool waitForTurn(std::unique_lock<std::mutex> &lock, const BackgroundTask &task);

    std::mutex m_mutex;
    std::condition_variable_any m_answered;
    /// The last password that was entered; it may be wrong. Absent if it is known to be wrong.
    std::optional<PasswordRequest::Credentials> m_credentials;
    /// The number of passwords entered so far.
    int m_count = 0;
    bool m_isAsking = false;
    bool m_isRefused = false;
};

} // namespace server
} // namespace cups
} // namespace host
