// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace host {
inline namespace strip {

/// Returns a length such as "36.5 mm" in the number format of the user's locale, with at most one decimal.
QString lengthText(Millimetres length);

/// Returns the length of the tape that the plan uses or, until it is final, a text that it is being measured.
QString tapeText(const CutPlan &plan);

/// Returns the figures of the plan in one line: labels, pieces (only if the cut settings are known) and tape.
QString cutPlanFigures(const CutPlan &plan);

/// Returns a description of what happens to the tape, one sentence per item, in the user's language.
QStringList cutPlanDescription(const CutPlan &plan);

/// Returns the plan in machine-readable form: "labels" (page counted from 1, length, what follows), "pieces",
/// "tapeUsed" and "leadingMargin" (null if the printer does not report it). Lengths are in millimetres, and
/// null until they are measured.
QJsonObject cutPlanJson(const CutPlan &plan);

} // namespace strip
} // namespace host
