// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {
inline namespace text {

/// Reads an XML property list (libplist). Dictionaries become QVariantMap, arrays QVariantList,
/// strings QString, data QByteArray, integers qlonglong, reals double, booleans bool. Nothing when
/// the bytes are not an XML property list; binary property lists are not accepted.
std::optional<QVariant> fromXmlPropertyList(const QByteArray &xml);

/// The string that a dictionary at the top of an XML property list has under the key; the last one where the
/// key stands twice. Nothing when there is none. Reads no other entry, so it is fit for lists from outside,
/// however deep they are nested; fromXmlPropertyList() needs stack for each level.
std::optional<QString> stringInXmlPropertyList(const QByteArray &xml, const QString &key);

/// Writes the value as an XML property list. Values of other types than fromXmlPropertyList() yields
/// are written as their text.
QByteArray toXmlPropertyList(const QVariant &value);

} // namespace text
} // namespace platform
