// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SetupJob.h"

#include <host/strip/CutPlan.h>

#include <QJsonArray>

#include <utility>
#include <vector>

namespace host {
inline namespace setup {

/// Lines of a summary under one title: name and value.
struct SummarySection {
    QString title;
    std::vector<std::pair<QString, QString>> lines;
};

/// Returns all settings of the job for reading before printing: those of the dialog, those of the panel in
/// the panel's order, and the description of the strip. Queries the panel for its lines about the ticket's
/// choices. The plan is null without a paper; then the strip is not described.
std::vector<SummarySection> summarize(const Ticket &ticket, const PrinterSetup &setup, const CutPlan *plan);

/// Returns the summary as text for a terminal.
QString summaryInPlainText(const std::vector<SummarySection> &sections);
/// Returns the summary for programs: a list of sections, each with "title" and "lines" of "title" and
/// "value".
QJsonArray summaryJson(const std::vector<SummarySection> &sections);

} // namespace setup
} // namespace host
