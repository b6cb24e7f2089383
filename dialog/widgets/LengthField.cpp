// SPDX-License-Identifier: Apache-2.0
#include "LengthField.h"

#include <algorithm>

namespace dialog {
inline namespace widgets {

LengthField::LengthField(host::Points minimum, host::Points maximum, QWidget *parent)
    : NumberField(minimum / lengthOf(userLengthUnit()), maximum / lengthOf(userLengthUnit()),
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
        setRange(minimum / lengthOf(m_unit), minimum / lengthOf(m_unit));
}

host::Points LengthField::length() const
{
    return isReadOnly() ? m_minimum : std::clamp(value() * lengthOf(m_unit), m_minimum, m_maximum);
}

void LengthField::showLength(host::Points length)
{
    showNumber(qBound(minimum(), length / lengthOf(m_unit), maximum()));
}

} // namespace widgets
} // namespace dialog
