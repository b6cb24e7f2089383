// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QCheckBox;

namespace dialog {
inline namespace options {

/// A check box, for options that are on or off.
class SwitchControl : public OptionControl {
    Q_OBJECT

public:
    /// Whether the option says itself that it is on or off, and its two choices do too.
    static bool suits(const host::PpdOption &option);

    SwitchControl(const host::PpdOption &option, QWidget *parent);

    void showMarked(const host::PpdOptions &options) override;

protected:
    QList<QWidget *> spoken() const override;

private:
    void showMeaning();

    host::PpdChoice m_on;
    host::PpdChoice m_off;
    QCheckBox *m_box;
};

} // namespace options
} // namespace dialog
