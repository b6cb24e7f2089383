// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTreeWidget>

#include <utility>
#include <vector>

namespace dialog {

/// Lines of a summary under one title.
struct SummarySection {
    QString title;
    std::vector<std::pair<QString, QString>> lines;
};

/// All settings of the job in one list, to be read before printing.
class SummaryPage : public QTreeWidget {
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent);

    void setSections(const std::vector<SummarySection> &sections);
};

/// The sections as plain text, for a terminal.
QString summaryInPlainText(const std::vector<SummarySection> &sections);

} // namespace dialog
