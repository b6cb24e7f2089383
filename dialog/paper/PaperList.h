// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

#include <QListWidget>

namespace dialog {
inline namespace paper {

/// A list from which one paper is chosen, with headings if these help to find a paper. A search does not
/// change the chosen paper.
class PaperList : public QListWidget {
    Q_OBJECT

public:
    /// The entry for a custom size, which the user still has to enter.
    static constexpr int customEntry = -1;

    /// Creates an empty list.
    explicit PaperList(QWidget *parent);

    /// Replaces all entries without emitting a signal. If allowsCustom is true, the first entry is the one
    /// for custom sizes: it would be hard to find after hundreds of papers.
    void setPapers(const std::vector<host::PpdPaper> &papers, bool allowsCustom);
    /// Makes the paper at this index, or customEntry, the current entry without emitting a signal.
    void showEntry(int entry);
    /// Shows only the papers whose texts contain every word of the search, and the entry for custom sizes.
    void filter(const QString &search);
    /// Chooses the first paper that is shown; does nothing if there is none.
    void chooseFirst();

Q_SIGNALS:
    /// Emitted when a paper has been chosen; the entry is its index, or customEntry.
    void entryChosen(int entry);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addHeading(const QString &title);
    void addPaper(const host::PpdPaper &paper, const QString &text, int entry, const QString &heading);
    void styleHeadings();
    void fitWidth();
};

} // namespace paper
} // namespace dialog
