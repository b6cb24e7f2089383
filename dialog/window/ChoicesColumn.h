// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/SetupKeeper.h>

#include <QWidget>

class QVBoxLayout;

namespace host {
inline namespace documents {
class LabelDocument;
} // namespace documents
} // namespace host

namespace dialog {
inline namespace job {
class PageOptions;
} // namespace job
} // namespace dialog

namespace dialog {
inline namespace paper {
class PaperChooser;
} // namespace paper
} // namespace dialog

namespace dialog {
inline namespace window {

/// The settings that every printer has: the printer itself, the paper, the pages and the copies. Stands
/// beside the pages of the printer.
class ChoicesColumn : public QWidget {
    Q_OBJECT

public:
    /// The document and the keeper are not owned and must outlive the widget. The settings are the initial
    /// ones.
    ChoicesColumn(const host::LabelDocument &document, host::SetupKeeper &keeper,
                  const host::JobSettings &settings, QWidget *parent);

    /// The fields for pages, copies and order.
    PageOptions &pages() const { return *m_pages; }
    /// Shows the papers of the keeper's current setup. The list is hidden if there is no setup, or no paper.
    void showPapers();
    /// Returns the chosen paper. Must be called only while papers are shown, for example after paperChosen().
    const host::PpdPaper &chosenPaper() const;
    /// Shows those of the conflicts that involve the paper.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

Q_SIGNALS:
    /// Emitted when the user has chosen another paper.
    void paperChosen();

private:
    QWidget *makePrinter();

    const host::LabelDocument &m_document;
    host::SetupKeeper &m_keeper;
    QVBoxLayout *m_paperPlace;
    /// Null until the first printer with papers.
    PaperChooser *m_papers = nullptr;
    PageOptions *m_pages;
};

} // namespace window
} // namespace dialog
