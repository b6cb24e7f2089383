// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripOracle.h"

namespace host {
inline namespace strip {
class CutPlan;
} // namespace strip
} // namespace host

namespace dialogwalk {

/// The strip that a cut plan and its description show.
ExpectedStrip stripOf(const host::CutPlan &plan, const QString &words);

/// Compares "Labels: 4 · Pieces: 2 · Tape: 120.5 mm" with the strip, the tape within the uncertainty of
/// measuring. Returns one line for each difference; place names where the text is shown.
QStringList compareFigures(const QString &place, const QString &words, const ExpectedStrip &expected);

} // namespace dialogwalk
