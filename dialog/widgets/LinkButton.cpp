// SPDX-License-Identifier: Apache-2.0
#include "LinkButton.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace dialog {
inline namespace widgets {

namespace {

constexpr int margin = 2;

} // namespace

LinkButton::LinkButton(QWidget *parent)
    : QPushButton(parent)
{
    setFlat(true);
    setAutoDefault(false);
    setCursor(Qt::PointingHandCursor);
}

QSize LinkButton::sizeHint() const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * margin, 2 * margin);
}

QSize LinkButton::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 12, sizeHint().height()};
}

void LinkButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(true);
    painter.setFont(underlined);
    const QRect inside = rect().adjusted(margin, margin, -margin, -margin);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, inside.width());
    style()->drawItemText(&painter, inside,
                          static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading)) |
                              Qt::AlignVCenter | Qt::TextShowMnemonic,
                          palette(), isEnabled(), shown, QPalette::Link);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace widgets
} // namespace dialog
