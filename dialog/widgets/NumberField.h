// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDoubleSpinBox>

namespace dialog {
inline namespace widgets {

/// A field for a number within limits that omits trailing zeros. The mouse wheel changes the number only
/// while the field has the focus, so that scrolling a page does not change it.
class NumberField : public QDoubleSpinBox {
    Q_OBJECT

public:
    /// The limits are rounded inwards to the given number of decimals.
    NumberField(double minimum, double maximum, int decimals, QWidget *parent);

    /// Shows the number without emitting a signal. A number that is shown already leaves the text unchanged,
    /// because it may be half typed.
    void showNumber(double number);

    /// Returns the number without trailing zeros.
    QString textFromValue(double value) const override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace widgets
} // namespace dialog
