// SPDX-License-Identifier: Apache-2.0
#include "Shrinker.h"

#include <QJsonArray>

#include <algorithm>

namespace walk {

bool Shrinker::keepIfFailing(const Episode &candidate)
{
    if (!m_fails(candidate))
        return false;
    m_best = candidate;
    return true;
}

Episode Shrinker::shrink(Episode failing)
{
    m_best = std::move(failing);
    bool shrunk = true;
    while (shrunk) {
        shrunk = shrinkRequests();
        shrunk |= shrinkMembers();
        shrunk |= shrinkMarks();
        shrunk |= shrinkOptions();
        shrunk |= shrinkChoices();
        shrunk |= shrinkAttributes();
    }
    return m_best;
}

/// Leaves out runs of requests, long runs first; the one that opens the printer stays.
bool Shrinker::shrinkRequests()
{
    bool shrunk = false;
    for (auto run = m_best.requests.size(); run >= 1; run /= 2) {
        for (qsizetype at = 1; at < m_best.requests.size();) {
            auto candidate = m_best;
            candidate.requests.remove(at, std::min(run, candidate.requests.size() - at));
            if (keepIfFailing(candidate))
                shrunk = true;
            else
                at += run;
        }
    }
    return shrunk;
}

bool Shrinker::shrinkMembers()
{
    bool shrunk = false;
    for (qsizetype at = 0; at < m_best.requests.size(); ++at) {
        const auto members = m_best.requests[at].keys();
        for (const auto &member : members) {
            auto candidate = m_best;
            candidate.requests[at].remove(member);
            shrunk |= member != "op" && keepIfFailing(candidate);
        }
    }
    return shrunk;
}

bool Shrinker::shrinkMarks()
{
    bool shrunk = false;
    for (auto at = m_best.requests[0].value("marks").toArray().size() - 1; at >= 0; --at) {
        auto candidate = m_best;
        auto marks = candidate.requests[0].value("marks").toArray();
        marks.removeAt(at);
        candidate.requests[0]["marks"] = marks;
        shrunk |= keepIfFailing(candidate);
    }
    return shrunk;
}

bool Shrinker::shrinkOptions()
{
    bool shrunk = false;
    for (auto at = m_best.printer.options.size(); at-- > 0;) {
        auto candidate = m_best;
        candidate.printer.options.erase(candidate.printer.options.begin() + static_cast<std::ptrdiff_t>(at));
        shrunk |= keepIfFailing(candidate);
    }
    return shrunk;
}

/// Shortens the choice lists from their ends, first by halves and then by single choices.
bool Shrinker::shrinkChoices()
{
    bool shrunk = false;
    for (std::size_t at = 0; at < m_best.printer.options.size(); ++at) {
        for (auto cut = m_best.printer.options[at].choices.size(); cut >= 1; cut /= 2) {
            while (m_best.printer.options[at].choices.size() >= cut) {
                auto candidate = m_best;
                auto &choices = candidate.printer.options[at].choices;
                choices.resize(choices.size() - cut);
                if (!keepIfFailing(candidate))
                    break;
                shrunk = true;
            }
        }
    }
    return shrunk;
}

bool Shrinker::shrinkAttributes()
{
    auto candidate = m_best;
    candidate.printer.tapeType.reset();
    bool shrunk = m_best.printer.tapeType && keepIfFailing(candidate);
    candidate = m_best;
    candidate.printer.autoCutObjHidden.reset();
    shrunk |= m_best.printer.autoCutObjHidden && keepIfFailing(candidate);
    for (auto at = m_best.printer.papers.size() - 1; at >= 0; --at) {
        candidate = m_best;
        candidate.printer.papers.removeAt(at);
        shrunk |= keepIfFailing(candidate);
    }
    return shrunk;
}

} // namespace walk
