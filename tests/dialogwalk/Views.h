// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

namespace dialogwalk {

/// What the dialog's strip shows, read from its plan and its spoken words; absent while it shows none.
std::optional<ExpectedStrip> shownStrip(const WalkedDialog &dialog);

/// Holds everything that shows the job to what would be sent: strip, figures and sentences, summary, the page
/// of what will be sent with its command, the panel's own boxes, and the conflicts. A line for each place
/// that shows something else; empty when all agree.
QStringList departures(const WalkedDialog &dialog);

} // namespace dialogwalk
