// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobSettings.h>

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace dialog {
inline namespace job {

/// Which pages of the documents are printed, how often and in which order.
class PageOptions : public QWidget {
    Q_OBJECT

public:
    /// The documents' page counts, in the order in which they are printed.
    PageOptions(std::vector<int> pageCounts, QWidget *parent);

    /// What will come out, or why it cannot be printed.
    host::Result<host::PageChoices, host::PageRangeError> choices() const;
    /// Shows what is wished, quietly; nothing stands for what the printer does by itself. Copies are brought
    /// within 1 to host::mostCopies; the text of the pages is taken as it is, and checked by choices().
    void setSettings(const host::JobSettings &settings);
    /// Shows, quietly, what another printer does by itself with all that nobody has set.
    void setDefaults(const host::JobSettings &defaults);
    /// Puts what is wished of pages, copies and order into the settings, the others stay. What nobody has set
    /// is left to the printer.
    void writeTo(host::JobSettings &settings) const;

Q_SIGNALS:
    void changed();

private:
    void build();
    void connectAll();
    void show();

    std::vector<int> m_pageCounts;
    host::JobSettings m_wishes;
    host::JobSettings m_defaults;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
    QCheckBox *m_lastFirst;
};

} // namespace job
} // namespace dialog
