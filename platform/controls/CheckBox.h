// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCheckBox>

namespace platform {
inline namespace controls {

/// A check box on a panel of fixed width: a title that is too long for it, as a translated option text
/// of a PPD may be, ends in an ellipsis and is told whole in the tool tip.
class CheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit CheckBox(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownTitle() const;
};

} // namespace controls
} // namespace platform
