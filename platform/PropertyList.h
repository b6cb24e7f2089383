// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {

/// Reads an XML property list (libplist). Dictionaries become QVariantMap, arrays QVariantList,
/// strings QString, data QByteArray, integers qlonglong, reals double, booleans bool. Nothing when
/// the bytes are not an XML property list; binary property lists are not accepted.
std::optional<QVariant> fromXmlPropertyList(const QByteArray &xml);

/// Writes the value as an XML property list. Values of other types than fromXmlPropertyList() yields
/// are written as their text.
QByteArray toXmlPropertyList(const QVariant &value);

} // namespace platform
