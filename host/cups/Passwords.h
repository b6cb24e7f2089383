// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace host {

class BackgroundTask;

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
    std::optional<Credentials> wait(const BackgroundTask &task) const;

private:
    struct Reply {
        std::mutex mutex;
        std::condition_variable given;
        bool isGiven = false;
        std::optional<Credentials> credentials;
    };

    void reply(std::optional<Credentials> credentials) const;

    QString m_prompt;
    QString m_user;
    std::shared_ptr<Reply> m_reply = std::make_shared<Reply>();
};

/// Shows the wish to the user and sees that it is answered or refused, now or later.
using PasswordHandler = std::function<void(const PasswordRequest &)>;

/// The password that a server took last, for the rest of the program's life. Safe to share by threads.
class PasswordMemory {
public:
    std::optional<PasswordRequest::Credentials> recall() const;
    void keep(const PasswordRequest::Credentials &credentials);

private:
    mutable std::mutex m_mutex;
    std::optional<PasswordRequest::Credentials> m_credentials;
};

} // namespace host
