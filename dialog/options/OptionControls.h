// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

namespace dialog {
inline namespace options {

/// Creates the control that suits the option: check boxes for PickMany, one check box for an option that is
/// on or off, otherwise a list. The parent owns the control.
OptionControl *makeOptionControl(const host::PpdOption &option, QWidget *parent);

} // namespace options
} // namespace dialog
