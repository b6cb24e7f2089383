// SPDX-License-Identifier: Apache-2.0
#include "RecordedChoices.h"

#include "PanelSettings.h"

namespace host {
inline namespace panels {

void RecordedChoices::record(const QString &keyword, const QString &choice)
{
    setChoice(m_pairs, keyword, choice);
}

std::optional<QString> RecordedChoices::choice(const QString &keyword) const
{
    return findChoice(m_pairs, keyword);
}

} // namespace panels
} // namespace host
