// SPDX-License-Identifier: Apache-2.0
#include "PaperList.h"

#include "PaperGroups.h"

#include <dialog/widgets/LengthUnit.h>
#include <dialog/widgets/PlainToolTip.h>

#include <QEvent>
#include <QHash>
#include <QSignalBlocker>

#include <algorithm>

namespace dialog {
inline namespace paper {

namespace {

enum Role {
    EntryRole = Qt::UserRole, ///< the index of the paper, or customEntry; absent for headings
    SearchRole,               ///< the text in which a search looks
};

bool isHeading(const QListWidgetItem &item)
{
    return !item.data(EntryRole).isValid();
}

bool matches(const QListWidgetItem &item, const QStringList &words)
{
    // The words can be in any order: "24 die" finds "Die-Cut 24 mm x 38 mm".
    const QString searched = item.data(SearchRole).toString();
    return std::ranges::all_of(
        words, [&](const QString &word) { return searched.contains(word, Qt::CaseInsensitive); });
}

QString toolTipText(const host::PpdPaper &paper)
{
    return QStringLiteral("%1\n%2").arg(QString::fromUtf8(paper.name),
                                        PaperList::tr("%1 wide, %2 long")
                                            .arg(exactLength(host::Points(paper.size.width())),
                                                 exactLength(host::Points(paper.size.height()))));
}

/// Returns the texts of the papers, followed by the name if several papers have the same text.
QStringList entryTexts(const std::vector<host::PpdPaper> &papers)
{
    QHash<QString, int> counts;
    for (const host::PpdPaper &paper : papers)
        ++counts[paper.text];
    QStringList texts;
    for (const host::PpdPaper &paper : papers) {
        const bool isUnique = counts.value(paper.text) == 1;
        texts.append(isUnique ? paper.text
                              : PaperList::tr("%1 (%2)", "a paper's text and its name")
                                    .arg(paper.text, QString::fromUtf8(paper.name)));
    }
    return texts;
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

void PaperList::setPapers(const std::vector<host::PpdPaper> &papers, bool allowsCustom)
{
    const QSignalBlocker quiet(this);
    clear();
    if (allowsCustom) {
        auto *const item = new QListWidgetItem(tr("Custom size\u2026"), this);
        item->setData(EntryRole, customEntry);
    }
    const QStringList texts = entryTexts(papers);
    const auto add = [&](std::size_t index, const QString &heading) {
        const auto entry = static_cast<int>(index);
        addPaper(papers[index], texts[entry], entry, heading);
    };
    const std::vector<PaperGroup> groups = groupPapers(papers);
    for (const PaperGroup &group : groups) {
        addHeading(group.title);
        for (const std::size_t index : group.papers)
            add(index, group.title);
    }
    for (std::size_t index = 0; groups.empty() && index < papers.size(); ++index)
        add(index, {});
    styleHeadings();
    fitWidth();
}

void PaperList::addHeading(const QString &title)
{
    auto *const item = new QListWidgetItem(title, this);
    // The arrow keys skip items that are not enabled.
    item->setFlags(Qt::NoItemFlags);
}

void PaperList::addPaper(const host::PpdPaper &paper, const QString &text, int entry, const QString &heading)
{
    auto *const item = new QListWidgetItem(text, this);
    item->setData(EntryRole, entry);
    item->setData(SearchRole, QStringList{paper.text, QString::fromUtf8(paper.name), heading}.join(u' '));
    item->setToolTip(plainToolTip(toolTipText(paper)));
}

void PaperList::styleHeadings()
{
    // Headings have another background. Bold text would need a second font, which would be loaded for this
    // purpose only.
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
    // Wide enough for the texts of the papers, up to a limit.
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

void PaperList::chooseFirst()
{
    for (int row = 0; row < count(); ++row) {
        QListWidgetItem *const each = item(row);
        const bool isPaper = !isHeading(*each) && each->data(EntryRole).toInt() != customEntry;
        if (isPaper && !each->isHidden()) {
            setCurrentItem(each);
            return;
        }
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
    // One paper is always selected. QListWidget would clear the selection on a click next to the items and on
    // a Ctrl-click, and would not update it when the current item changes by a key pressed with Ctrl.
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
        styleHeadings();
}

} // namespace paper
} // namespace dialog
