// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PrintJob.h>

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace dialog {

/// Which pages of the document are printed, how often and in which order.
class PageOptions : public QWidget {
    Q_OBJECT

public:
    PageOptions(int pageCount, QWidget *parent);

    /// The choices as they stand, or why they cannot be printed.
    host::Result<host::PageChoices, host::PageRangeError> choices() const;
    /// The pages as the user wrote them; "all" in the user's language for an empty field.
    QString pagesInWords() const;

    /// The pages as the user wrote them; empty for all.
    QString rangesText() const;
    /// Whether there are copies whose order can be chosen. Otherwise collating makes no difference.
    bool collateIsOffered() const;

    /// Shows these as if the user had chosen them, quietly. Copies are brought within 1 to host::mostCopies;
    /// the text of the pages is taken as it is, and checked by choices().
    void setChoices(int copies, host::Collate collate, const QString &ranges);

Q_SIGNALS:
    void changed();

private:
    int m_pageCount;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
};

} // namespace dialog
