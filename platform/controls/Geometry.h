// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

class QWidget;

namespace platform {
inline namespace controls {

/// A widget's frame in its parent's coordinates with y growing upwards from the parent's bottom edge:
/// the coordinates in which the panel's layout rules are written. Points; the origin is the frame's
/// bottom-left corner. These two are the only place where the two directions meet.
QRectF frameFromBottom(const QWidget *widget);

/// Moves the widget so that its frame's bottom edge lies at y above the bottom edge of a parent of the
/// given height; x stays.
void setBottomEdge(QWidget *widget, double y, double parentHeight);

/// The point that a text such as "{12, 3.5}" describes: an opening brace, x, a comma, y, a closing
/// brace, blanks allowed between. The zero point when the text is anything else.
QPointF pointFromString(const QString &text);

} // namespace controls
} // namespace platform
