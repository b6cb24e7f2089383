// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QString>

#include <optional>

namespace host {
inline namespace documents {

/// The length in px at 96 an inch; nothing when there is none, or one that depends on something else.
std::optional<double> lengthInPixels(const QString &length);

/// The text, an attribute's or a style's, with every length in mm, cm, in, pt, pc or Q written in px.
QString lengthsInPixels(const QString &text);

/// Whether the attribute's value is a length, or a style with lengths in it.
bool holdsLengths(QStringView attribute);

/// The four numbers of a view box; nothing when they are not four.
std::optional<QRectF> parseViewBox(const QString &text);

} // namespace documents
} // namespace host
