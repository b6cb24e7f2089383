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

/// The printer's papers under the PPD's own names and texts, by width, with a field to search among many;
/// free sizes where the printer takes them; and the document's own size where that fits.
class PaperChooser : public QWidget {
    Q_OBJECT

public:
    /// The PPD is borrowed. A paper to choose that is not among its papers, nor a free size, is put in front.
    PaperChooser(const host::PpdFile &ppd, const host::PpdPaper &chosen, QWidget *parent);

    /// Shows the papers of another PPD, quietly; what is being searched for stays.
    void setPpd(const host::PpdFile &ppd, const host::PpdPaper &chosen);
    /// Offers the size of the document's pages, in points, where the printer takes it, turned or not; an
    /// empty one offers nothing.
    void setDocumentPage(const QSizeF &points);

    const host::PpdPaper &chosen() const { return m_chosen; }
    /// Chooses a paper by its name, byte for byte, or a free size such as "Custom.36x50mm"; quietly. False,
    /// and nothing is changed, when the printer does not have it.
    bool choose(const QByteArray &name);
    /// Tells below the papers which of these the chosen paper is part of.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

Q_SIGNALS:
    /// The user chose another paper.
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
    /// Null where the printer takes no free sizes.
    CustomPaperFields *m_fields = nullptr;
    QPushButton *m_documentButton;
};

} // namespace paper
} // namespace dialog
