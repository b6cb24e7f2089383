// SPDX-License-Identifier: Apache-2.0
#include "Trust.h"

namespace host {
inline namespace cups {
inline namespace server {

namespace {

/// Returns the identifier of a question. Two questions are the same if they are about the same certificate of
/// the same server, or about passwords for the same server.
QString identifierOf(const TrustRequest &request)
{
    // The server's name contains no line break.
    return request.server() + u'\n' + request.fingerprint();
}

} // namespace

TrustRequest::TrustRequest(Subject subject, QString server, QString fingerprint, QString reason)
    : m_subject(subject)
    , m_server(std::move(server))
    , m_fingerprint(std::move(fingerprint))
    , m_reason(std::move(reason))
{
}

TrustRequest TrustRequest::certificate(const QString &server, const QString &fingerprint,
                                       const QString &reason)
{
    return {Subject::Certificate, server, fingerprint, reason};
}

TrustRequest TrustRequest::readablePassword(const QString &server)
{
    return {Subject::ReadablePassword, server, {}, {}};
}

bool TrustMemory::isGranted(const TrustRequest &request, const BackgroundTask &task, const TrustHandler &ask)
{
    const QString identifier = identifierOf(request);
    std::unique_lock lock(m_mutex);
    m_answered.wait(lock, task.stopToken(), [&] { return !m_isAsking || m_granted.contains(identifier); });
    if (m_granted.contains(identifier))
        return true;
    if (m_rejected.contains(identifier) || !ask || task.isCanceled())
        return false;
    m_isAsking = true;
    lock.unlock();
    task.deliver([ask, request] { ask(request); });
    const bool isGranted = request.wait(task);
    lock.lock();
    m_isAsking = false;
    // Canceling the task does not count as declining.
    if (isGranted || !task.isCanceled())
        (isGranted ? m_granted : m_rejected).insert(identifier);
    m_answered.notify_all();
    return isGranted;
}

void TrustMemory::resetRefusals()
{
    const std::scoped_lock lock(m_mutex);
    m_rejected.clear();
}

} // namespace server
} // namespace cups
} // namespace host
