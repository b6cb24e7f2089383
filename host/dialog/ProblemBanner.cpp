// SPDX-License-Identifier: Apache-2.0
#include "ProblemBanner.h"

#include <host/cups/QueueSession.h>

namespace dialog {

void ProblemBanner::follow(const host::QueueSession &session)
{
    connect(&session, &host::QueueSession::failed, this,
            [this](const host::CupsError &error) { setServerProblem(error.message); });
    connect(&session, &host::QueueSession::recovered, this, [this] { setServerProblem({}); });
    // What was wrong with another printer is no concern of this one.
    connect(&session, &host::QueueSession::chosenChanged, this, [this] {
        m_sending.clear();
        setServerProblem({});
    });
}

void ProblemBanner::setSendingProblem(const QString &problem)
{
    m_sending = problem;
    refresh();
}

void ProblemBanner::setServerProblem(const QString &problem)
{
    m_server = problem;
    refresh();
}

void ProblemBanner::setRefusals(const std::vector<host::ChoiceError> &refusals)
{
    QStringList sentences;
    for (const host::ChoiceError &refusal : refusals)
        sentences.append(refusal.message);
    m_refusals = sentences.join(u' ');
    refresh();
}

void ProblemBanner::refresh()
{
    QStringList problems{m_sending, m_server, m_refusals};
    problems.removeAll(QString());
    problems.removeDuplicates();
    setMessage(problems.join(u'\n'));
}

} // namespace dialog
