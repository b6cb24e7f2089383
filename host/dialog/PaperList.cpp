// SPDX-License-Identifier: Apache-2.0
#include "PaperList.h"

#include "LengthUnit.h"
#include "PaperGroups.h"

#include <QEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace dialog {

namespace {

enum Role {
    EntryRole = Qt::UserRole, ///< a position, or customEntry; absent for headings
    SearchRole,               ///< what a search looks through
};

bool isHeading(const QListWidgetItem &item)
{
    return !item.data(EntryRole).isValid();
}

bool matches(const QListWidgetItem &item, const QStringList &words)
{
    // Every word may stand anywhere: "24 die" finds "Die-Cut 24 mm x 38 mm".
    const QString searched = item.data(SearchRole).toString();
    return std::ranges::all_of(
        words, [&](const QString &word) { return searched.contains(word, Qt::CaseInsensitive); });
}

QString toolTipText(const host::PpdPaper &paper)
{
    return QStringLiteral("%1\n%2").arg(
        QString::fromUtf8(paper.name),
        PaperList::tr("%1 wide, %2 long")
            .arg(exactLength(paper.size.width()), exactLength(paper.size.height())));
}

/// The paper's text; with its name where another paper has the same text.
QString entryText(const std::vector<host::PpdPaper> &papers, const host::PpdPaper &paper)
{
    if (std::ranges::count(papers, paper.text, &host::PpdPaper::text) == 1)
        return paper.text;
    return PaperList::tr("%1 (%2)", "a paper's text and its name")
        .arg(paper.text, QString::fromUtf8(paper.name));
}

} // namespace

PaperList::PaperList(QWidget *parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item && !isHeading(*item))
            Q_EMIT entryChosen(item->data(EntryRole).toInt());
    });
}

void PaperList::setPapers(const std::vector<host::PpdPaper> &papers, bool takesCustom)
{
    const QSignalBlocker quiet(this);
    clear();
    if (takesCustom) {
        auto *const item = new QListWidgetItem(tr("Custom size\u2026"), this);
        item->setData(EntryRole, customEntry);
    }
    const std::vector<PaperGroup> groups = groupPapers(papers);
    for (const PaperGroup &group : groups) {
        addHeading(group.title);
        for (const std::size_t index : group.papers)
            addPaper(papers, index, group.title);
    }
    for (std::size_t index = 0; groups.empty() && index < papers.size(); ++index)
        addPaper(papers, index, {});
    dressHeadings();
    fitWidth();
}

void PaperList::addHeading(const QString &title)
{
    auto *const item = new QListWidgetItem(title, this);
    // Keys pass over what is not enabled.
    item->setFlags(Qt::NoItemFlags);
}

void PaperList::addPaper(const std::vector<host::PpdPaper> &papers, std::size_t index, const QString &heading)
{
    const host::PpdPaper &paper = papers[index];
    auto *const item = new QListWidgetItem(entryText(papers, paper), this);
    item->setData(EntryRole, static_cast<int>(index));
    item->setData(SearchRole, QStringList{paper.text, QString::fromUtf8(paper.name), heading}.join(u' '));
    item->setToolTip(toolTipText(paper));
}

void PaperList::dressHeadings()
{
    // Set off by their ground: bold letters would need a second font, loaded for this alone.
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    for (int row = 0; row < count(); ++row) {
        if (!isHeading(*item(row)))
            continue;
        item(row)->setBackground(palette().brush(group, QPalette::Window));
        item(row)->setForeground(palette().brush(group, QPalette::WindowText));
    }
}

void PaperList::fitWidth()
{
    setMinimumHeight(fontMetrics().height() * 6);
    // Wide enough for the papers' texts, unless one of them is a novel.
    const int widest = fontMetrics().averageCharWidth() * 40;
    int texts = 0;
    for (int row = 0; row < count(); ++row)
        texts = qMax(texts, fontMetrics().horizontalAdvance(item(row)->text()));
    setMinimumWidth(qMin(texts + fontMetrics().height() * 3, widest));
}

void PaperList::showEntry(int entry)
{
    const QSignalBlocker quiet(this);
    for (int row = 0; row < count(); ++row) {
        if (!isHeading(*item(row)) && item(row)->data(EntryRole).toInt() == entry)
            setCurrentRow(row);
    }
}

void PaperList::filter(const QString &search)
{
    const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
    QListWidgetItem *heading = nullptr;
    for (int row = 0; row < count(); ++row) {
        QListWidgetItem *const each = item(row);
        if (isHeading(*each)) {
            heading = each;
            each->setHidden(true);
            continue;
        }
        const bool isCustom = each->data(EntryRole).toInt() == customEntry;
        const bool isShown = isCustom || matches(*each, words);
        each->setHidden(!isShown);
        if (heading && isShown)
            heading->setHidden(false);
    }
}

QItemSelectionModel::SelectionFlags PaperList::selectionCommand(const QModelIndex &index,
                                                                const QEvent *) const
{
    // One paper is always chosen. Qt would take the highlight off it at clicks beside the papers, and at
    // Ctrl-clicks, and leave it behind when Ctrl and a key choose another.
    const Qt::ItemFlags usable = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool isPaper = index.isValid() && (index.flags() & usable) == usable;
    return isPaper ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void PaperList::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    if (currentItem())
        scrollToItem(currentItem(), PositionAtCenter);
}

void PaperList::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    const QEvent::Type changes[] = {QEvent::PaletteChange, QEvent::FontChange, QEvent::EnabledChange};
    if (std::ranges::find(changes, event->type()) != std::end(changes))
        dressHeadings();
}

} // namespace dialog
