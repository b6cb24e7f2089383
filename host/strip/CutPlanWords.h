// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace host {

/// A length in the user's number format, for instance "36.5 mm".
QString lengthInWords(double millimetres);

/// The tape that the plan takes, or that it is still being measured.
QString tapeInWords(const CutPlan &plan);

/// The plan's figures in one line: labels, pieces, tape.
QString cutPlanFigures(const CutPlan &plan);

/// What happens to the tape, one sentence each, in the user's language.
QStringList cutPlanSentences(const CutPlan &plan);

/// The plan for programs: "labels" (page from 1, length, what follows), "pieces", "tapeUsed" and
/// "leadingMargin" (null when the printer does not tell); lengths in millimetres, null while they are
/// measured.
QJsonObject cutPlanJson(const CutPlan &plan);

} // namespace host
