// SPDX-License-Identifier: Apache-2.0
#include "PaperChooser.h"

#include "ClearButton.h"

#include <host/CutPlanWords.h>
#include <host/Units.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {

namespace {

QString sizeInWords(const host::PpdPaper &paper)
{
    return PaperChooser::tr("%1 wide, %2 long")
        .arg(host::lengthInWords(paper.size.width() * host::millimetresPerPoint),
             host::lengthInWords(paper.size.height() * host::millimetresPerPoint));
}

bool matches(const host::PpdPaper &paper, const QString &text)
{
    // Every word may stand anywhere: "24 die" finds "Die-Cut 24 mm x 38 mm".
    const QString searched = paper.text + u' ' + QString::fromUtf8(paper.name);
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(
        words, [&](const QString &word) { return searched.contains(word, Qt::CaseInsensitive); });
}

} // namespace

PaperChooser::PaperChooser(std::vector<host::PpdPaper> papers, const host::PpdPaper &chosen, QWidget *parent)
    : QWidget(parent)
    , m_papers(std::move(papers))
    , m_search(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    auto found = std::ranges::find(m_papers, chosen.name, &host::PpdPaper::name);
    if (found == m_papers.end())
        found = m_papers.insert(m_papers.begin(), chosen);
    m_chosen = static_cast<std::size_t>(found - m_papers.begin());
    for (const host::PpdPaper &paper : m_papers) {
        auto *const item = new QListWidgetItem(paper.text, m_list);
        item->setToolTip(QStringLiteral("%1\n%2").arg(QString::fromUtf8(paper.name), sizeInWords(paper)));
    }
    m_list->setCurrentRow(static_cast<int>(m_chosen));
    m_list->setMinimumHeight(m_list->fontMetrics().height() * 6);
    // Wide enough for the papers' texts, unless one of them is a novel.
    const int widest = m_list->fontMetrics().averageCharWidth() * 40;
    m_list->setMinimumWidth(qMin(m_list->sizeHintForColumn(0) + m_list->fontMetrics().height() * 3, widest));

    auto *const label = new QLabel(tr("P&aper"), this);
    label->setBuddy(m_list);
    m_list->setAccessibleName(tr("Paper"));
    m_search->setPlaceholderText(tr("Search papers"));
    m_search->setAccessibleName(tr("Search papers"));
    addClearButton(m_search);
    // A few papers are seen at a glance.
    constexpr std::size_t searchable = 8;
    m_search->setVisible(m_papers.size() > searchable);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    connect(m_search, &QLineEdit::textChanged, this, &PaperChooser::filter);
    connect(m_list, &QListWidget::currentRowChanged, this, &PaperChooser::choose);
}

void PaperChooser::filter(const QString &text)
{
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setHidden(!matches(m_papers[static_cast<std::size_t>(row)], text));
}

void PaperChooser::choose(int row)
{
    if (row < 0 || static_cast<std::size_t>(row) == m_chosen)
        return;
    m_chosen = static_cast<std::size_t>(row);
    Q_EMIT paperChosen();
}

} // namespace dialog
