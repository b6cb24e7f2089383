// SPDX-License-Identifier: Apache-2.0
#include "LengthField.h"

namespace dialog {
inline namespace widgets {

LengthField::LengthField(double minimum, double maximum, QWidget *parent)
    : NumberField(minimum / pointsPer(userLengthUnit()), maximum / pointsPer(userLengthUnit()),
                  exactDecimals(userLengthUnit()), parent)
    , m_unit(userLengthUnit())
    , m_minimum(minimum)
    , m_maximum(maximum)
{
    setSuffix(u' ' + unitText(m_unit));
    setSingleStep(m_unit == LengthUnit::Inch ? 0.125 : 1.0);
    // If the range is narrower than the last decimal, rounding makes the minimum larger than the maximum.
    const bool isFixed = this->minimum() >= this->maximum() || maximum <= minimum;
    setReadOnly(isFixed);
    setButtonSymbols(isFixed ? NoButtons : UpDownArrows);
    if (isFixed)
        setRange(minimum / pointsPer(m_unit), minimum / pointsPer(m_unit));
}

double LengthField::points() const
{
    return isReadOnly() ? m_minimum : qBound(m_minimum, value() * pointsPer(m_unit), m_maximum);
}

void LengthField::showPoints(double points)
{
    showNumber(qBound(minimum(), points / pointsPer(m_unit), maximum()));
}

} // namespace widgets
} // namespace dialog
