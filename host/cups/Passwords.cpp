// SPDX-License-Identifier: Apache-2.0
#include "Passwords.h"

#include "Background.h"

namespace host {

PasswordRequest::PasswordRequest(QString prompt, QString user)
    : m_prompt(std::move(prompt))
    , m_user(std::move(user))
{
}

void PasswordRequest::answer(const QString &user, const QString &password) const
{
    reply(Credentials{user.toUtf8(), password.toUtf8()});
}

void PasswordRequest::refuse() const
{
    reply(std::nullopt);
}

void PasswordRequest::reply(std::optional<Credentials> credentials) const
{
    const std::scoped_lock lock(m_reply->mutex);
    if (m_reply->isGiven)
        return;
    m_reply->isGiven = true;
    m_reply->credentials = std::move(credentials);
    m_reply->given.notify_all();
}

std::optional<PasswordRequest::Credentials> PasswordRequest::wait(const BackgroundTask &task) const
{
    std::unique_lock lock(m_reply->mutex);
    // Nobody answers a wish whose dialog has been closed; the task is cancelled then.
    while (!m_reply->isGiven && !task.isCancelled())
        m_reply->given.wait_for(lock, std::chrono::milliseconds(100));
    return m_reply->credentials;
}

std::optional<PasswordRequest::Credentials> PasswordMemory::recall() const
{
    const std::scoped_lock lock(m_mutex);
    return m_credentials;
}

void PasswordMemory::keep(const PasswordRequest::Credentials &credentials)
{
    const std::scoped_lock lock(m_mutex);
    m_credentials = credentials;
}

} // namespace host
