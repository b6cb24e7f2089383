// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/Constraints.h>
#include <host/printer/PpdFile.h>

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace dialog {
inline namespace options {
class ConflictNote;
} // namespace options
} // namespace dialog

namespace dialog {
inline namespace paper {

class CustomPaperFields;
class PaperList;

/// A list of the printer's papers with the names and texts of the PPD, grouped by width. It has a search
/// field if there are many papers, fields for a custom size if the printer supports one, and a button for the
/// document's page size if the printer has a paper for it.
class PaperChooser : public QWidget {
    Q_OBJECT

public:
    /// The PPD is not owned and must outlive the widget, or be replaced with setPpd(). A chosen paper that is
    /// neither one of the PPD's papers nor a custom size is inserted as the first paper.
    PaperChooser(const host::PpdFile &ppd, const host::PpdPaper &chosen, QWidget *parent);

    /// Shows the papers of another PPD without emitting a signal; the text of the search is kept.
    void setPpd(const host::PpdFile &ppd, const host::PpdPaper &chosen);
    /// Offers the size of the document's pages, in points, if the printer has a paper for it, upright or
    /// rotated. An empty size offers nothing.
    void setDocumentPage(const QSizeF &points);

    /// Returns the chosen paper.
    const host::PpdPaper &chosen() const { return m_chosen; }
    /// Chooses a paper by its name, byte for byte, or a custom size such as "Custom.36x50mm", without
    /// emitting a signal. Returns false, and changes nothing, if the printer does not have the paper.
    bool choose(const QByteArray &name);
    /// Shows, below the list, those of the conflicts that involve the paper.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

Q_SIGNALS:
    /// Emitted when the user has chosen another paper.
    void paperChosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void buildCustom();
    void chooseEntry(int entry);
    void chooseCustomSize();
    void chooseDocumentSize();
    void showPaper(const host::PpdPaper &paper);
    std::optional<host::PpdPaper> customPaper(const QByteArray &name) const;
    std::optional<host::PpdPaper> paperForDocument() const;
    void updateDocumentButton();

    const host::PpdFile *m_ppd;
    std::vector<host::PpdPaper> m_papers;
    std::optional<host::PpdCustomLimits> m_limits;
    host::PpdPaper m_chosen;
    QSizeF m_documentPage;
    QLineEdit *m_search;
    PaperList *m_list;
    ConflictNote *m_note;
    /// Null if the printer does not support custom sizes.
    CustomPaperFields *m_fields = nullptr;
    QPushButton *m_documentButton;
};

} // namespace paper
} // namespace dialog
