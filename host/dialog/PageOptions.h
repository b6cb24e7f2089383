// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PrintJob.h>
#include <host/cups/JobOptions.h>

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace dialog {

/// Which pages of the documents are printed, how often and in which order.
class PageOptions : public QWidget {
    Q_OBJECT

public:
    /// The documents' page counts, in the order in which they are printed.
    PageOptions(std::vector<int> pageCounts, QWidget *parent);

    /// The choices as they stand, or why they cannot be printed.
    host::Result<host::PageChoices, host::PageRangeError> choices() const;
    /// Shows copies, order and pages of the settings, quietly; nothing stands for one copy of all pages, set
    /// by set. Copies are brought within 1 to host::mostCopies; the text of the pages is taken as it is, and
    /// checked by choices().
    void setSettings(const host::JobSettings &settings);
    /// Puts copies, order and pages into the settings, the others stay. What nobody has set is left to the
    /// queue.
    void writeTo(host::JobSettings &settings) const;

Q_SIGNALS:
    void changed();

private:
    bool m_setsCopies = false;
    std::vector<int> m_pageCounts;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
};

} // namespace dialog
