// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/PpdFile.h>

#include <QWidget>

class QLineEdit;
class QListWidget;

namespace dialog {

/// The printer's papers under the PPD's own names and texts, with a field to search among them. A search
/// never changes the choice.
class PaperChooser : public QWidget {
    Q_OBJECT

public:
    /// Papers in the PPD's order; a paper to choose that is not among them is put in front.
    PaperChooser(std::vector<host::PpdPaper> papers, const host::PpdPaper &chosen, QWidget *parent);

    const host::PpdPaper &chosen() const { return m_papers[m_chosen]; }

Q_SIGNALS:
    /// The user chose another paper.
    void paperChosen();

private:
    void filter(const QString &text);
    void choose(int row);

    std::vector<host::PpdPaper> m_papers;
    std::size_t m_chosen = 0;
    QLineEdit *m_search;
    QListWidget *m_list;
};

} // namespace dialog
