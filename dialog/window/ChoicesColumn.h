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

/// What is chosen of every printer, beside its own pages: the printer itself, the paper, pages and copies.
class ChoicesColumn : public QWidget {
    Q_OBJECT

public:
    /// Document and keeper are borrowed. The settings are those to begin with.
    ChoicesColumn(const host::LabelDocument &document, host::SetupKeeper &keeper,
                  const host::JobSettings &settings, QWidget *parent);

    PageOptions &pages() const { return *m_pages; }
    /// Shows the papers of the keeper's printer as it is now, and none when it has none or there is no
    /// printer.
    void showPapers();
    /// The paper that paperChosen() told of.
    const host::PpdPaper &chosenPaper() const;
    /// Shows those conflicts that are about the paper.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

Q_SIGNALS:
    /// The user has chosen another paper.
    void paperChosen();

private:
    QWidget *makePrinter();

    const host::LabelDocument &m_document;
    host::SetupKeeper &m_keeper;
    QVBoxLayout *m_paperPlace;
    /// Null until a printer has papers.
    PaperChooser *m_papers = nullptr;
    PageOptions *m_pages;
};

} // namespace window
} // namespace dialog
