// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace platform {
inline namespace system {

/// The settings of the job that a dialog is about to print: named values that the dialog passes from panel to
/// panel and finally to the printing system.
class PrintSettings {
public:
    /// Returns the value that is stored under the key; std::nullopt if there is none.
    std::optional<QVariant> value(const QString &key) const;

    /// Stores the value and replaces an earlier one. A value has a type that a property list can hold:
    /// string, number, boolean, byte array, or a list or map of these.
    void setValue(const QString &key, const QVariant &value);

    /// Removes the entry; does nothing if there is none.
    void remove(const QString &key);

    /// All entries, sorted by key.
    const QVariantMap &values() const { return m_values; }

    /// The first and the last page to print, counted from 1.
    std::uint32_t firstPage = 1;
    std::uint32_t lastPage = 0x7fffffff;

private:
    QVariantMap m_values;
};

} // namespace system
} // namespace platform
