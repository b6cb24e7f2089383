// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCheckBox>

namespace platform {
inline namespace controls {

/// A check box for a panel of fixed width. A title that is too long, such as a translated option text of a
/// PPD, is elided, and the tool tip shows it in full.
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
