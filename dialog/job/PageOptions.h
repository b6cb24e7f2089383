// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobSettings.h>

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace dialog {
inline namespace job {

/// Fields for the pages of the documents to print, the number of copies and the order.
class PageOptions : public QWidget {
    Q_OBJECT

public:
    /// pageCounts are the numbers of pages of the documents, in the order in which they are printed.
    PageOptions(std::vector<int> pageCounts, QWidget *parent);

    /// Returns the pages that will be printed, or an error if they cannot be printed.
    host::Result<host::PageChoices, host::PageRangeError> choices() const;
    /// Shows the requested settings without emitting a signal. Absent values stand for the printer's
    /// defaults. Copies are limited to 1 to host::maxCopies; the text of the pages is kept unchanged,
    /// choices() checks it.
    void setSettings(const host::JobSettings &settings);
    /// Shows the defaults of another printer for the values that are not set, without emitting a signal.
    void setDefaults(const host::JobSettings &defaults);
    /// Writes pages, copies and order to the settings, and leaves the other settings unchanged. Values that
    /// are not set become absent, so that the printer's defaults apply.
    void writeTo(host::JobSettings &settings) const;

Q_SIGNALS:
    /// Emitted when the user has changed a setting.
    void changed();

private:
    void build();
    void connectAll();
    void show();

    std::vector<int> m_pageCounts;
    host::JobSettings m_requested;
    host::JobSettings m_defaults;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    QLineEdit *m_pages;
    QCheckBox *m_reverse;
};

} // namespace job
} // namespace dialog
