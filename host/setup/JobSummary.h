// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SetupJob.h"

#include <host/strip/CutPlan.h>

#include <QJsonArray>

#include <utility>
#include <vector>

namespace host {
inline namespace setup {

/// Lines of a summary under one title.
struct SummarySection {
    QString title;
    std::vector<std::pair<QString, QString>> lines;
};

/// All settings of the job, to be read before printing: the dialog's own, the panel's in the panel's order,
/// and what becomes of the strip. The setup's panel is asked for its lines about the ticket's choices; there
/// may be none. The plan is null without a paper, when nothing is known of the strip.
std::vector<SummarySection> summarize(const Ticket &ticket, const PrinterSetup &setup, const CutPlan *plan);

/// For a terminal.
QString summaryInPlainText(const std::vector<SummarySection> &sections);
/// For programs: a list of sections, each with "title" and "lines" of "title" and "value".
QJsonArray summaryJson(const std::vector<SummarySection> &sections);

} // namespace setup
} // namespace host
