// SPDX-License-Identifier: Apache-2.0
#include "Passwords.h"

namespace host {
inline namespace cups {
inline namespace server {

PasswordRequest::PasswordRequest(QString prompt, QString user)
    : m_prompt(std::move(prompt))
    , m_user(std::move(user))
{
}

void PasswordRequest::answer(const QString &user, const QString &password) const
{
    m_reply.give(Credentials{user.toUtf8(), password.toUtf8()});
}

void PasswordRequest::reject() const
{
    m_reply.give(std::nullopt);
}

bool PasswordMemory::waitForTurn(std::unique_lock<std::mutex> &lock, const BackgroundTask &task)
{
    m_answered.wait(lock, task.stopToken(), [this] { return !m_isAsking; });
    return !task.isCanceled();
}

std::optional<PasswordRequest::Credentials> PasswordMemory::get(const PasswordRequest &request,
                                                                const BackgroundTask &task,
                                                                const PasswordHandler &ask, int &tried)
{
    std::unique_lock lock(m_mutex);
    if (!waitForTurn(lock, task))
        return std::nullopt;
    if (m_count > tried && m_credentials) {
        tried = m_count;
        return m_credentials;
    }
    if (m_isRefused || !ask)
        return std::nullopt;
    m_isAsking = true;
    lock.unlock();
    task.deliver([ask, request] { ask(request); });
    std::optional<PasswordRequest::Credentials> answer = request.wait(task);
    lock.lock();
    m_isAsking = false;
    // Canceling the task does not count as declining.
    m_isRefused = !answer && !task.isCanceled();
    if (answer) {
        m_credentials = answer;
        tried = ++m_count;
    }
    m_answered.notify_all();
    return answer;
}

void PasswordMemory::reject(int tried)
{
    const std::scoped_lock lock(m_mutex);
    if (tried != m_count)
        return;
    m_credentials.reset();
    m_isRefused = true;
}

void PasswordMemory::resetRefusal()
{
    const std::scoped_lock lock(m_mutex);
    m_isRefused = false;
}

} // namespace server
} // namespace cups
} // namespace host
