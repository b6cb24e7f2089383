// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

#include <QListWidget>

namespace dialog {
inline namespace paper {

/// Papers to pick one from, under headings where these help to find it. A search never changes the choice.
class PaperList : public QListWidget {
    Q_OBJECT

public:
    /// The entry for a paper whose size is still to be given.
    static constexpr int customEntry = -1;

    explicit PaperList(QWidget *parent);

    /// Replaces all entries, quietly. The entry for custom sizes comes first: there it is found among
    /// hundreds.
    void setPapers(const std::vector<host::PpdPaper> &papers, bool takesCustom);
    /// Makes the paper at that position the current one, or the custom entry; quietly.
    void showEntry(int entry);
    /// Shows only papers in whose texts every word of the search stands, and the entry for custom sizes.
    void filter(const QString &search);
    /// Chooses the first paper of those that are shown; nothing when there is none.
    void chooseFirst();

Q_SIGNALS:
    /// The user chose the paper at that position, or customEntry.
    void entryChosen(int entry);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addHeading(const QString &title);
    void addPaper(const host::PpdPaper &paper, const QString &text, int entry, const QString &heading);
    void dressHeadings();
    void fitWidth();
};

} // namespace paper
} // namespace dialog
