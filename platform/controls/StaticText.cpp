// SPDX-License-Identifier: Apache-2.0
#include "StaticText.h"

#include <QStyle>
#include <QStylePainter>

namespace platform {
inline namespace controls {

StaticText::StaticText(QWidget *parent)
    : QLabel(parent)
{
}

void StaticText::setTextColor(ControlTextColor color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
}

void StaticText::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    const bool enabled = isEnabled() && m_color == ControlTextColor::Enabled;
    QPalette palette = this->palette();
    palette.setCurrentColorGroup(enabled ? QPalette::Active : QPalette::Disabled);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    painter.drawItemText(contentsRect(),
                         static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())), palette,
                         enabled, shown, foregroundRole());
}

} // namespace controls
} // namespace platform
