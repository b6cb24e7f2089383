// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace platform {
inline namespace system {

/// The settings of the job that a dialog is about to print: named values, as a print dialog hands
/// them from panel to panel and at last to the printing system.
class PrintSettings {
public:
    /// The value under the key, or nothing.
    std::optional<QVariant> value(const QString &key) const;

    /// Stores the value, replacing what was there. Values are texts, numbers, booleans, byte
    /// arrays, and lists and maps of these: what a property list can hold.
    void setValue(const QString &key, const QVariant &value);

    /// Takes the entry out; does nothing when there is none.
    void remove(const QString &key);

    /// All entries in the order of their keys.
    const QVariantMap &values() const { return m_values; }

    /// First and last page to print, counted from 1.
    std::uint32_t firstPage = 1;
    std::uint32_t lastPage = 0x7fffffff;

private:
    QVariantMap m_values;
};

} // namespace system
} // namespace platform
