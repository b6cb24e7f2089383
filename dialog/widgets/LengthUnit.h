// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSizeF>
#include <QString>

namespace dialog {
inline namespace widgets {

/// In what people measure labels.
enum class LengthUnit { Millimetre, Inch };

/// The unit of the user's country.
LengthUnit userLengthUnit();
/// How many points there are to the unit.
double pointsPer(LengthUnit unit);
/// The unit as it stands behind a number.
QString unitText(LengthUnit unit);
/// So many decimals tell apart what differs by 0.01 mm.
int exactDecimals(LengthUnit unit);

/// A length in points, to 0.01 mm, in the user's unit and number format: "36.05 mm".
QString exactLength(double points);
/// A length in points, to what tells papers apart at a glance: "36 mm", "101.6 mm", "0.47 in".
QString roundLength(double points);
/// A size in points, width first: "36 × 50 mm".
QString exactSize(const QSizeF &points);

} // namespace widgets
} // namespace dialog
