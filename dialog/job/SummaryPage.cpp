// SPDX-License-Identifier: Apache-2.0
#include "SummaryPage.h"

#include <dialog/widgets/PlainToolTip.h>

#include <QHeaderView>

namespace dialog {
inline namespace job {

SummaryPage::SummaryPage(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderLabels({tr("Setting"), tr("Value")});
    setAccessibleName(tr("Summary"));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
}

void SummaryPage::setSections(const std::vector<SummarySection> &sections)
{
    clear();
    for (const SummarySection &section : sections) {
        auto *const head = new QTreeWidgetItem(this, {section.title});
        QFont bold = font();
        bold.setBold(true);
        head->setFont(0, bold);
        head->setFirstColumnSpanned(true);
        for (const auto &[title, value] : section.lines) {
            auto *const line = new QTreeWidgetItem(head, {title, value});
            line->setToolTip(1, plainToolTip(value));
        }
    }
    expandAll();
}

} // namespace job
} // namespace dialog
