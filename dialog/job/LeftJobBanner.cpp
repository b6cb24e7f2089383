// SPDX-License-Identifier: Apache-2.0
#include "LeftJobBanner.h"

namespace dialog {
inline namespace job {

LeftJobBanner::LeftJobBanner(host::CupsServer server, QWidget *parent)
    : Banner(parent)
    , m_server(std::move(server))
{
    connect(this, &Banner::remedyClicked, this, [this] {
        if (m_jobs.empty())
            setMessage({});
        else
            settle(host::LeftJobAction::Cancel);
    });
    connect(this, &Banner::alternativeClicked, this, [this] { settle(host::LeftJobAction::Release); });
}

void LeftJobBanner::lookForJobs()
{
    host::JobJournal::Left left = host::JobJournal().left();
    m_jobs = std::move(left.jobs);
    m_messages = left.damages;
    showNext();
}

void LeftJobBanner::showNext()
{
    if (m_jobs.empty()) {
        setMessage(m_messages.join(u'\n'), m_messages.isEmpty() ? QString() : tr("Dismiss"));
        return;
    }
    const QStringList sentences = m_messages + QStringList{host::leftJobSentence(m_jobs.front())};
    setMessage(sentences.join(u'\n'), tr("Cancel the job"), tr("Release the job"));
}

void LeftJobBanner::settle(host::LeftJobAction action)
{
    // The buttons cannot be pressed again until the server has responded.
    setEnabled(false);
    m_server.passwords->resetRefusal();
    m_background.start([this, server = m_server, job = m_jobs.front(), action](host::BackgroundTask &task) {
        const auto outcome = host::settleLeftJob(server, job, action, task);
        task.deliver([this, outcome] { takeOutcome(outcome); });
    });
}

void LeftJobBanner::takeOutcome(const host::Result<QString, host::CupsError> &outcome)
{
    setEnabled(true);
    if (outcome)
        m_jobs.erase(m_jobs.begin());
    m_messages = {outcome ? outcome.value() : outcome.error().message};
    showNext();
}

} // namespace job
} // namespace dialog
