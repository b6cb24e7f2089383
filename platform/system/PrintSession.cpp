// SPDX-License-Identifier: Apache-2.0
#include "PrintSession.h"

namespace platform {
inline namespace system {

std::optional<std::int32_t> PrintSession::data(const QString &key) const
{
    const auto found = m_data.constFind(key);
    if (found == m_data.constEnd())
        return std::nullopt;
    return *found;
}

} // namespace system
} // namespace platform
