// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Length.h>

#include <QSizeF>
#include <QString>

namespace dialog {
inline namespace widgets {

/// The unit in which lengths are shown and entered.
enum class LengthUnit { Millimetre, Inch };

/// Returns the unit of the user's country (default locale): inches where the US system is used, otherwise
/// millimetres.
LengthUnit userLengthUnit();
/// Returns the length of one unit.
host::Points lengthOf(LengthUnit unit);
/// Returns the translated symbol of the unit, as it follows a number.
QString unitText(LengthUnit unit);
/// Returns the number of decimals that distinguishes lengths that differ by 0.01 mm.
int exactDecimals(LengthUnit unit);

/// Returns a length in the user's unit and number format, to 0.01 mm: "36.05 mm".
QString exactLength(host::Points length);
/// Returns a length rounded to what distinguishes papers: 0.1 mm or 0.01 in; "36 mm", "101.6 mm", "0.47 in".
QString roundLength(host::Points length);
/// Returns a size, given in points, in the user's unit to 0.01 mm, width first: "36 × 50 mm".
QString exactSize(const QSizeF &points);

} // namespace widgets
} // namespace dialog
