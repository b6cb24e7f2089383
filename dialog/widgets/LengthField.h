// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LengthUnit.h"
#include "NumberField.h"

namespace dialog {
inline namespace widgets {

/// A field for a length within limits, in the user's unit and with a precision of 0.01 mm. If the limits
/// allow only one length, the field shows it and is read-only.
class LengthField : public NumberField {
    Q_OBJECT

public:
    /// Both limits are in points.
    LengthField(double minimum, double maximum, QWidget *parent);

    /// Returns the length in points, always within the limits; exactly the minimum if the field is read-only.
    double points() const;
    /// Shows the length, given in points and limited to the range, without emitting a signal.
    void showPoints(double points);

private:
    LengthUnit m_unit;
    double m_minimum;
    double m_maximum;
};

} // namespace widgets
} // namespace dialog
