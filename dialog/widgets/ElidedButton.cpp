// SPDX-License-Identifier: Apache-2.0
#include "ElidedButton.h"

#include "PlainToolTip.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

namespace dialog {
inline namespace widgets {

ElidedButton::ElidedButton(QWidget *parent)
    : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize ElidedButton::minimumSizeHint() const
{
    return {qMin(fontMetrics().averageCharWidth() * 12, sizeHint().width()), sizeHint().height()};
}

bool ElidedButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || width() >= sizeHint().width())
        return QPushButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       plainToolTip(text().replace(QStringLiteral("&&"), QStringLiteral("&"))), this);
    return true;
}

void ElidedButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int aroundText = sizeHint().width() - fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    option.text =
        fontMetrics().elidedText(text(), Qt::ElideRight, width() - aroundText, Qt::TextShowMnemonic);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace widgets
} // namespace dialog
