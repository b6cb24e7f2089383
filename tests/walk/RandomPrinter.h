// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Dice.h"

#include <tests/model/PrinterDescription.h>

namespace walk {

/// Some printer: either family, any subset of the panel's keywords. Most options have their usual form, the
/// rest every odd one that a PPD may hold.
model::PrinterDescription randomPrinter(Dice &dice);

} // namespace walk
