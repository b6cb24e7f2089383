// SPDX-License-Identifier: Apache-2.0
#include "Walk.h"

#include "Records.h"
#include "Views.h"

#include <gtest/gtest.h>

namespace dialogwalk {

QString Fault::text() const
{
    return steps.join(u'\n') + QStringLiteral("\n--\n") + disagreements.join(u'\n');
}

std::optional<Fault> Walk::begin(const QString &destination)
{
    m_intent.forget();
    m_done = {QStringLiteral("open ") + destination};
    m_episode = {destination, m_server.variants(), {}};
    if (!m_dialog.open(destination))
        return Fault{m_done, {QStringLiteral("the dialog does not open: ") + m_dialog.told()}};
    m_intent.enter(destination, m_dialog.options());
    return check();
}

std::optional<Fault> Walk::go(const Step &step)
{
    m_episode.steps.push_back(step);
    const quint64 openings = m_dialog.openings();
    SCOPED_TRACE(nameOf(step.action).toStdString() + " after " +
                 m_done.last(qMin<qsizetype>(3, m_done.size())).join(u';').toStdString());
    const QString what = m_hand.perform(step);
    m_done.append(QStringLiteral("%1 %2: %3").arg(nameOf(step.action)).arg(step.number).arg(what));
    if (openings != m_dialog.openings()) {
        m_episode = {m_dialog.destination(), m_server.variants(), {}};
        m_done = {QStringLiteral("open ") + m_dialog.destination()};
    }
    return check();
}

std::optional<Fault> Walk::check()
{
    QStringList lines = disagreements(m_dialog);
    if (m_dialog.window().ticket())
        lines += m_intent.broken(m_dialog);
    return lines.isEmpty() ? std::nullopt : std::optional(Fault{m_done, lines});
}

std::optional<Fault> Walk::checkRecords()
{
    const std::vector<SentJob> &all = m_hand.sent();
    const std::vector<SentJob> jobs(all.begin() + static_cast<std::ptrdiff_t>(m_recorded), all.end());
    m_recorded = all.size();
    const QStringList lines = disagreementsOnServer(m_server, jobs);
    return lines.isEmpty() ? std::nullopt : std::optional(Fault{m_done, lines});
}

std::optional<Fault> Walk::run(const Episode &episode)
{
    m_server.setVariants(episode.variants);
    std::optional<Fault> fault = begin(episode.destination);
    for (std::size_t i = 0; !fault && i < episode.steps.size(); ++i)
        fault = go(episode.steps[i]);
    const std::optional<Fault> onServer = checkRecords();
    return fault ? fault : onServer;
}

std::pair<Episode, Fault> shortest(WalkedServer &server, Episode failing, Fault fault, int tries)
{
    for (std::size_t run = failing.steps.size(); run >= 1; run /= 2) {
        for (std::size_t at = 0; at < failing.steps.size() && tries > 0;) {
            Episode candidate = failing;
            const auto first = candidate.steps.begin() + static_cast<std::ptrdiff_t>(at);
            candidate.steps.erase(
                first, first + static_cast<std::ptrdiff_t>(std::min(run, candidate.steps.size() - at)));
            Walk walk(server);
            --tries;
            if (const std::optional<Fault> its = walk.run(candidate)) {
                failing = candidate;
                fault = *its;
            } else {
                at += run;
            }
        }
    }
    return {failing, fault};
}

} // namespace dialogwalk
