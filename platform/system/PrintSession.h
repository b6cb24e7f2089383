// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>

namespace platform {
inline namespace system {

/// One run of a print dialog, with the values that components of a printer's software store in it for each
/// other.
class PrintSession {
public:
    /// Returns the number that is stored under the key; std::nullopt if there is none.
    std::optional<std::int32_t> data(const QString &key) const;
    /// Stores the number under the key and replaces an earlier one.
    void setData(const QString &key, std::int32_t value) { m_data.insert(key, value); }

private:
    QMap<QString, std::int32_t> m_data;
};

} // namespace system
} // namespace platform
