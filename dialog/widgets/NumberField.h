// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDoubleSpinBox>

namespace dialog {
inline namespace widgets {

/// A field for a number within limits, which shows no more decimals than the number has. Turning the mouse
/// wheel over it, on the way down a page, changes nothing.
class NumberField : public QDoubleSpinBox {
    Q_OBJECT

public:
    NumberField(double minimum, double maximum, int decimals, QWidget *parent);

    /// Shows the number, quietly. One that is shown already leaves the text alone, which may be half typed.
    void showNumber(double number);

    QString textFromValue(double value) const override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace widgets
} // namespace dialog
