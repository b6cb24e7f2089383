// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LengthUnit.h"
#include "NumberField.h"

namespace dialog {
inline namespace widgets {

/// A field for a length within limits, in the user's unit and to 0.01 mm. Where the limits leave no choice it
/// shows the only length and takes no other.
class LengthField : public NumberField {
    Q_OBJECT

public:
    /// The limits in points.
    LengthField(double minimum, double maximum, QWidget *parent);

    /// The length in points, exactly the limit where there is no choice.
    double points() const;
    /// Shows the length, in points, brought within the limits; quietly.
    void showPoints(double points);

private:
    LengthUnit m_unit;
    double m_minimum;
    double m_maximum;
};

} // namespace widgets
} // namespace dialog
