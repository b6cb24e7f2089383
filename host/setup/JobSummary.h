// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SetupJob.h"

#include <QJsonArray>

#include <utility>
#include <vector>

namespace host {

/// Lines of a summary under one title.
struct SummarySection {
    QString title;
    std::vector<std::pair<QString, QString>> lines;
};

/// All settings of the job, to be read before printing: the dialog's own, the panel's in the panel's order,
/// and what becomes of the strip. The strip's job is null without a PPD, where nobody knows of cuts.
std::vector<SummarySection> summarize(const PrinterSetup &setup, const LabelDocument &document,
                                      const JobDraft &draft, const PrintJob *strip);

/// For a terminal.
QString summaryInPlainText(const std::vector<SummarySection> &sections);
/// For programs: a list of sections, each with "title" and "lines" of "title" and "value".
QJsonArray summaryJson(const std::vector<SummarySection> &sections);

} // namespace host
