// SPDX-License-Identifier: Apache-2.0
#include "CheckBox.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

namespace platform {
inline namespace controls {

CheckBox::CheckBox(QWidget *parent)
    : QCheckBox(parent)
{
}

QString CheckBox::shownTitle() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    return fontMetrics().elidedText(text(), Qt::ElideRight, room);
}

bool CheckBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownTitle() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QCheckBox::event(event);
}

void CheckBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownTitle();
    painter.drawControl(QStyle::CE_CheckBox, option);
}

} // namespace controls
} // namespace platform
