// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPushButton>

namespace dialog {
inline namespace widgets {

/// A button with a text of any length. It is as wide as its text if the layout has room, and narrower
/// otherwise. A text that does not fit is elided; the tool tip and screen readers give the full text.
class ElidedButton : public QPushButton {
    Q_OBJECT

public:
    /// Creates a button without a text.
    explicit ElidedButton(QWidget *parent);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace widgets
} // namespace dialog
