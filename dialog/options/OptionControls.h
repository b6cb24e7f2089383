// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

namespace dialog {
inline namespace options {

/// Creates the control that suits the option. The parent owns it.
OptionControl *makeOptionControl(const host::PpdOption &option, QWidget *parent);

} // namespace options
} // namespace dialog
