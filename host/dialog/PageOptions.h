// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PrintJob.h>
#include <host/cups/JobOptions.h>

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
    /// Shows copies, order and pages of the settings; nothing stands for one copy of all pages, set by set.
    void setSettings(const host::JobSettings &settings);
    /// Puts copies, order and pages into the settings, the others stay. What nobody has set is left to the
    /// queue.
    void writeTo(host::JobSettings &settings) const;

Q_SIGNALS:
    void changed();

private:
    bool m_setsCopies = false;
    int m_pageCount;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
};

} // namespace dialog
