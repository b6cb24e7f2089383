// SPDX-License-Identifier: Apache-2.0
#include "NumberField.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include <cmath>

namespace dialog {
inline namespace widgets {

NumberField::NumberField(double minimum, double maximum, int decimals, QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setDecimals(decimals);
    // Rounding a limit to the decimals must not extend the range. A limit within 0.2 of the last decimal is
    // the exception, because it is a rounded value itself: 28.3465 points are 10 mm.
    const double scale = std::pow(10.0, decimals);
    constexpr double noise = 0.2;
    setRange(std::ceil(minimum * scale - noise) / scale, std::floor(maximum * scale + noise) / scale);
    setAccelerated(true);
}

void NumberField::showNumber(double number)
{
    const double minStep = std::pow(10.0, -decimals());
    if (std::abs(value() - number) < minStep / 2)
        return;
    const QSignalBlocker quiet(this);
    setValue(number);
}

QString NumberField::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    const QString point = locale().decimalPoint();
    if (!text.contains(point))
        return text;
    while (text.endsWith(locale().zeroDigit()))
        text.chop(1);
    if (text.endsWith(point))
        text.chop(point.size());
    return text;
}

void NumberField::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QDoubleSpinBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace widgets
} // namespace dialog
