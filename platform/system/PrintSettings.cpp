// SPDX-License-Identifier: Apache-2.0
#include "PrintSettings.h"

namespace platform {
inline namespace system {

std::optional<QVariant> PrintSettings::value(const QString &key) const
{
    const auto found = m_values.constFind(key);
    if (found == m_values.constEnd())
        return std::nullopt;
    return *found;
}

void PrintSettings::setValue(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
}

void PrintSettings::remove(const QString &key)
{
    m_values.remove(key);
}

} // namespace system
} // namespace platform
