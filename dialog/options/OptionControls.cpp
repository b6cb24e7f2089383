// SPDX-License-Identifier: Apache-2.0
#include "OptionControls.h"

#include "ChoiceControl.h"
#include "PickManyControl.h"
#include "SwitchControl.h"

namespace dialog {
inline namespace options {

OptionControl *makeOptionControl(const host::PpdOption &option, QWidget *parent)
{
    if (option.kind == host::PpdOptionKind::PickMany)
        return new PickManyControl(option, parent);
    if (SwitchControl::suits(option))
        return new SwitchControl(option, parent);
    return new ChoiceControl(option, parent);
}

} // namespace options
} // namespace dialog
