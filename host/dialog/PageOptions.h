// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PrintJob.h>

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
    /// The pages as the user wrote them; "all" in the user's language for an empty field.
    QString pagesInWords() const;

Q_SIGNALS:
    void changed();

private:
    std::vector<int> m_pageCounts;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
};

} // namespace dialog
