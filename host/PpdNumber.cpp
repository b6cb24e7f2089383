// SPDX-License-Identifier: Apache-2.0
#include "PpdNumber.h"

#include "Units.h"

namespace host {

QByteArray ppdNumber(double number)
{
    QByteArray text = QByteArray::number(number, 'f', 4);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray customPaperName(const QSizeF &points)
{
    return "Custom." + ppdNumber(points.width() * millimetresPerPoint) + 'x' +
           ppdNumber(points.height() * millimetresPerPoint) + "mm";
}

} // namespace host
