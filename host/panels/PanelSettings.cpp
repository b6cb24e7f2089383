// SPDX-License-Identifier: Apache-2.0
#include "PanelSettings.h"

#include <algorithm>

namespace host {
inline namespace panels {

void setChoice(PDEChoices &choices, const QString &keyword, const QString &choice)
{
    const auto found = std::ranges::find(choices, keyword, &PDEChoices::value_type::first);
    if (found == choices.end())
        choices.emplace_back(keyword, choice);
    else
        found->second = choice;
}

std::optional<QString> findChoice(const PDEChoices &choices, const QString &keyword)
{
    const auto found = std::ranges::find(choices, keyword, &PDEChoices::value_type::first);
    return found == choices.end() ? std::nullopt : std::optional(found->second);
}

std::optional<QString> PanelSettings::choice(const QString &keyword) const
{
    return findChoice(choices, keyword);
}

} // namespace panels
} // namespace host
