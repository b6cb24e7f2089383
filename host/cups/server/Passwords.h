// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Reply.h"

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <functional>

namespace host {

/// A server's wish for a password, put to the user on the main thread while the thread that talks to the
/// server waits. Copies are the same wish; the first answer counts.
class PasswordRequest {
public:
    PasswordRequest(QString prompt, QString user);

    /// What the server asks, in words.
    const QString &prompt() const { return m_prompt; }
    /// Whose password is asked for.
    const QString &user() const { return m_user; }

    /// The user's answer; the name may be another than user().
    void answer(const QString &user, const QString &password) const;
    /// The user does not want to give one.
    void refuse() const;

    struct Credentials {
        QByteArray user;
        QByteArray password;
    };
    /// For the waiting thread: the answer; nothing when refused or the task was cancelled.
    std::optional<Credentials> wait(const BackgroundTask &task) const { return m_reply.wait(task); }

private:
    QString m_prompt;
    QString m_user;
    Reply<Credentials> m_reply;
};

/// Shows the wish to the user and sees that it is answered or refused, now or later.
using PasswordHandler = std::function<void(const PasswordRequest &)>;

/// What the user has answered to a server's wishes for a password, for the rest of the program's life.
/// Several threads talk to a server at once; they share the memory, and the user is asked by one of them at a
/// time.
class PasswordMemory {
public:
    /// The answer to the request, which ask puts to the user; nothing when the user refuses or has refused.
    /// While another thread asks, that one's answer is waited for and taken. Answers that the thread has
    /// tried in vain are not taken again; tried counts them and is 0 at first.
    std::optional<PasswordRequest::Credentials>
    get(const PasswordRequest &request, const BackgroundTask &task, const PasswordHandler &ask, int &tried);
    /// The server has refused the answer with that count, and those before it. It is sent no more and the
    /// user is asked no more, as after a refusal of the user; unless there is another answer by now.
    void refuse(int tried);
    /// The user wants something of the server anew, and may be asked again after having refused.
    void forgetRefusal();

private:
    bool waitForTurn(std::unique_lock<std::mutex> &lock, const BackgroundTask &task);

    std::mutex m_mutex;
    std::condition_variable m_answered;
    /// Given last; it may be wrong. Nothing when it is known to be.
    std::optional<PasswordRequest::Credentials> m_credentials;
    /// How many passwords were given so far.
    int m_count = 0;
    bool m_isAsking = false;
    bool m_isRefused = false;
};

} // namespace host
