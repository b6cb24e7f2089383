// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace dialogwalk {

/// Presses the button that goes on, in every question and alert that comes up while the object lives.
class GoOn : public QObject {
public:
    GoOn();
    ~GoOn() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace dialogwalk
