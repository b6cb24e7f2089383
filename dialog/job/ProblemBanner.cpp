// SPDX-License-Identifier: Apache-2.0
#include "ProblemBanner.h"

#include <host/cups/queues/QueueSession.h>

namespace dialog {
inline namespace job {

void ProblemBanner::follow(host::QueueSession &session)
{
    connect(&session, &host::QueueSession::failed, this,
            [this](const host::CupsError &error) { setServerProblem(error); });
    connect(&session, &host::QueueSession::recovered, this, [this] { setServerProblem({}); });
    // The errors of another printer do not apply to this one.
    connect(&session, &host::QueueSession::chosenChanged, this, [this] {
        m_sending.clear();
        setServerProblem({});
    });
    connect(this, &Banner::remedyClicked, &session, [this, &session] {
        setServerProblem({});
        session.tryAgain();
    });
}

void ProblemBanner::setSendingProblem(const QString &problem)
{
    m_sending = problem;
    refresh();
}

void ProblemBanner::setServerProblem(const std::optional<host::CupsError> &problem)
{
    m_server = problem;
    refresh();
}

void ProblemBanner::setRefusals(const std::vector<host::ChoiceError> &refusals, const QStringList &replaced)
{
    QStringList sentences;
    for (const host::ChoiceError &refusal : refusals)
        sentences.append(refusal.message);
    const QString text = (sentences + replaced).join(u' ');
    if (text == m_refusals)
        return;
    m_refusals = text;
    refresh();
}

void ProblemBanner::refresh()
{
    QStringList problems{m_sending, m_server ? m_server->message : QString(), m_refusals};
    problems.removeAll(QString());
    problems.removeDuplicates();
    // The session keeps querying a server that it cannot reach, but only the user can supply a password or
    // trust.
    const bool wantsUser = m_server && (m_server->kind == host::CupsFailure::NotAuthorized ||
                                        m_server->kind == host::CupsFailure::Untrusted);
    setMessage(problems.join(u'\n'), wantsUser ? tr("Try again") : QString());
}

} // namespace job
} // namespace dialog
