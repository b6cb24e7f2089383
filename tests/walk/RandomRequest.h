// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Dice.h"

#include <tests/model/DriverModel.h>

#include <QJsonObject>

namespace walk {

/// The request that opens some dialog on the printer.
QJsonObject randomOpen(Dice &dice, const model::PrinterDescription &printer);

/// What may be asked next of the driver in the state that the model is in: mostly what makes sense then, with
/// a few requests that are out of order, forbidden or ill-formed. The printer is for opening it anew.
QJsonObject randomRequest(Dice &dice, const model::DriverModel &driver,
                          const model::PrinterDescription &printer);

} // namespace walk
