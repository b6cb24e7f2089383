// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPushButton>

namespace dialog {
inline namespace widgets {

/// A button for a text of any length: as wide as the text where there is room, and no wider than its place.
/// A text that does not fit is elided, and to be read in the tool tip; screen readers speak all of it.
class ElidedButton : public QPushButton {
    Q_OBJECT

public:
    explicit ElidedButton(QWidget *parent);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace widgets
} // namespace dialog
