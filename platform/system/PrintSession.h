// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>

namespace platform {
inline namespace system {

/// One run of a print dialog, with the values that components of a printer's software leave there for
/// each other.
class PrintSession {
public:
    /// The number stored under the key, or nothing.
    std::optional<std::int32_t> data(const QString &key) const;
    void setData(const QString &key, std::int32_t value) { m_data.insert(key, value); }

private:
    QMap<QString, std::int32_t> m_data;
};

} // namespace system
} // namespace platform
