// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QCheckBox;

namespace dialog {
inline namespace options {

/// A check box for an option that is on or off.
class SwitchControl : public OptionControl {
    Q_OBJECT

public:
    /// Returns whether the option is of type Boolean, has exactly the two choices True and False or On and
    /// Off (in any case), and allows no custom value.
    static bool suits(const host::PpdOption &option);

    /// The option must suit the control.
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
