// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPushButton>

namespace dialog {
inline namespace widgets {

/// A button that looks like a link, for an action offered beside other controls. A text that does not fit is
/// elided.
class LinkButton : public QPushButton {
    Q_OBJECT

public:
    /// Creates a button without a text.
    explicit LinkButton(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace widgets
} // namespace dialog
