// SPDX-License-Identifier: Apache-2.0
#include "LengthUnit.h"

#include <QCoreApplication>
#include <QLocale>

namespace dialog {
inline namespace widgets {

namespace {

struct LengthUnitText {
    Q_DECLARE_TR_FUNCTIONS(dialog::widgets::LengthUnit)
};

QString numberText(host::Points length, LengthUnit unit, int decimals)
{
    const QLocale locale;
    QString number = locale.toString(length / lengthOf(unit), 'f', decimals);
    while (number.endsWith(locale.zeroDigit()))
        number.chop(1);
    if (number.endsWith(locale.decimalPoint()))
        number.chop(locale.decimalPoint().size());
    return number;
}

QString exactNumber(host::Points length, LengthUnit unit)
{
    return numberText(length, unit, exactDecimals(unit));
}

QString withUnit(const QString &number, LengthUnit unit)
{
    return LengthUnitText::tr("%1 %2", "a number and its unit").arg(number, unitText(unit));
}

} // namespace

LengthUnit userLengthUnit()
{
    // The United Kingdom (ImperialUKSystem) uses miles, but measures paper in millimetres.
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? LengthUnit::Inch
                                                                      : LengthUnit::Millimetre;
}

host::Points lengthOf(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? host::Points(host::pointsPerInch)
                                    : host::Points(host::Millimetres(1.0));
}

QString unitText(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? LengthUnitText::tr("in", "inches")
                                    : LengthUnitText::tr("mm", "millimetres");
}

int exactDecimals(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? 4 : 2;
}

QString exactLength(host::Points length)
{
    const LengthUnit unit = userLengthUnit();
    return withUnit(exactNumber(length, unit), unit);
}

QString roundLength(host::Points length)
{
    const LengthUnit unit = userLengthUnit();
    return withUnit(numberText(length, unit, unit == LengthUnit::Inch ? 2 : 1), unit);
}

QString exactSize(const QSizeF &points)
{
    const LengthUnit unit = userLengthUnit();
    return LengthUnitText::tr("%1 \u00d7 %2 %3", "width, length and their unit")
        .arg(exactNumber(host::Points(points.width()), unit),
             exactNumber(host::Points(points.height()), unit), unitText(unit));
}

} // namespace widgets
} // namespace dialog
