// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/JobSummary.h>

#include <QTreeWidget>

namespace dialog {
inline namespace job {

using host::SummarySection;

/// All settings of the job in one list, to be read before printing.
class SummaryPage : public QTreeWidget {
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent);

    void setSections(const std::vector<SummarySection> &sections);
};

} // namespace job
} // namespace dialog
