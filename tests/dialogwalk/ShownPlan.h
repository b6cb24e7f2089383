// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripOracle.h"

namespace host {
class CutPlan;
} // namespace host

namespace dialogwalk {

/// The strip that a plan of cuts and the words about it show.
ExpectedStrip stripOf(const host::CutPlan &plan, const QString &words);

/// Holds "Labels: 4 · Pieces: 2 · Tape: 120.5 mm" to the strip, the tape within what measuring is uncertain
/// by. A line for each departure; the place says where the words stand.
QStringList compareFigures(const QString &place, const QString &words, const ExpectedStrip &expected);

} // namespace dialogwalk
