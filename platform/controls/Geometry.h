// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

class QWidget;

namespace platform {
inline namespace controls {

/// Returns a widget's frame in points, in its parent's coordinates, with y increasing upwards from the
/// parent's bottom edge; the origin is the frame's bottom-left corner. The layout rules of the panel use
/// these coordinates. Only this function and setBottomEdge() convert between the two directions.
QRectF frameFromBottom(const QWidget *widget);

/// Moves the widget so that its frame's bottom edge is y points above the bottom edge of a parent of the
/// given height; x does not change.
void setBottomEdge(QWidget *widget, double y, double parentHeight);

/// Parses a point such as "{12, 3.5}": an opening brace, x, a comma, y, a closing brace, optionally with
/// blanks in between. Returns the point (0, 0) for any other text.
QPointF pointFromString(const QString &text);

} // namespace controls
} // namespace platform
