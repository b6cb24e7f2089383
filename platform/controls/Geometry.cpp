// SPDX-License-Identifier: Apache-2.0
#include "Geometry.h"

#include <QRegularExpression>
#include <QWidget>

namespace platform {
inline namespace controls {

QRectF frameFromBottom(const QWidget *widget)
{
    const QRect frame = widget->geometry();
    const int parentHeight = widget->parentWidget() ? widget->parentWidget()->height() : 0;
    return {static_cast<double>(frame.x()), static_cast<double>(parentHeight - frame.y() - frame.height()),
            static_cast<double>(frame.width()), static_cast<double>(frame.height())};
}

void setBottomEdge(QWidget *widget, double y, double parentHeight)
{
    widget->move(widget->x(), qRound(parentHeight - y) - widget->height());
}

QPointF pointFromString(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        R"(^\s*\{\s*([-+]?[0-9.]+(?:[eE][-+]?\d+)?)\s*,\s*([-+]?[0-9.]+(?:[eE][-+]?\d+)?)\s*\}\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    bool xIsNumber = false;
    bool yIsNumber = false;
    const QPointF point(match.captured(1).toDouble(&xIsNumber), match.captured(2).toDouble(&yIsNumber));
    return xIsNumber && yIsNumber ? point : QPointF();
}

} // namespace controls
} // namespace platform
