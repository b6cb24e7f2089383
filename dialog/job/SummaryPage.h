// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/JobSummary.h>

#include <QTreeWidget>

namespace dialog {
inline namespace job {

using host::SummarySection;

/// Shows all settings of the job in one list, to be checked before printing.
class SummaryPage : public QTreeWidget {
    Q_OBJECT

public:
    /// Creates an empty page.
    explicit SummaryPage(QWidget *parent);

    /// Replaces the contents with these sections.
    void setSections(const std::vector<SummarySection> &sections);
};

} // namespace job
} // namespace dialog
