// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace dialogwalk {

/// Presses the button that continues in every question and alert that appears during the lifetime of the
/// object.
class GoOn : public QObject {
public:
    GoOn();
    ~GoOn() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace dialogwalk
