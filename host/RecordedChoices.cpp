// SPDX-License-Identifier: Apache-2.0
#include "RecordedChoices.h"

#include <algorithm>

namespace host {

void RecordedChoices::record(const QString &keyword, const QString &choice)
{
    const auto found = std::ranges::find(m_pairs, keyword, &Pair::first);
    if (found == m_pairs.end())
        m_pairs.emplace_back(keyword, choice);
    else
        found->second = choice;
}

std::optional<QString> RecordedChoices::choice(const QString &keyword) const
{
    const auto found = std::ranges::find(m_pairs, keyword, &Pair::first);
    if (found == m_pairs.end())
        return std::nullopt;
    return found->second;
}

} // namespace host
