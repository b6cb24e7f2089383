// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {
inline namespace text {

/// Parses an XML property list with libplist. Dictionaries become QVariantMap, arrays QVariantList, strings
/// QString, data QByteArray, integers qlonglong, reals double, booleans bool. Returns std::nullopt if the
/// bytes are not an XML property list; binary property lists are not accepted.
std::optional<QVariant> fromXmlPropertyList(const QByteArray &xml);

/// Returns the string that the top-level dictionary of an XML property list has under the key; if the key
/// occurs twice, the last value counts. Returns std::nullopt if there is no such string. Converts no other
/// entry, so it is safe for untrusted lists of any nesting depth; fromXmlPropertyList() needs stack space for
/// each level.
std::optional<QString> stringInXmlPropertyList(const QByteArray &xml, const QString &key);

/// Writes the value as an XML property list. Values of types that fromXmlPropertyList() does not return are
/// written as strings.
QByteArray toXmlPropertyList(const QVariant &value);

} // namespace text
} // namespace platform
