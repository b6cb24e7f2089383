// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

namespace dialogwalk {

/// What the dialog's strip shows, read from its plan and its accessible description; absent while it shows
/// none.
std::optional<ExpectedStrip> shownStrip(const WalkedDialog &dialog);

/// Compares everything that shows the job with what would be sent: strip, figures and sentences, summary, the
/// page of what will be sent with its command, the panel's own boxes, and the conflicts. Returns one line for
/// each place that differs; empty when all agree.
QStringList disagreements(const WalkedDialog &dialog);

} // namespace dialogwalk
