// SPDX-License-Identifier: Apache-2.0
#include "OptionsPage.h"

#include "OptionGroupPage.h"

#include <dialog/widgets/PlainToolTip.h>
#include <host/printer/PpdOptions.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QStyle>

#include <algorithm>

namespace dialog {
inline namespace options {

namespace {

bool isPaper(const QByteArray &keyword)
{
    return qstricmp(keyword.constData(), "PageSize") == 0 || qstricmp(keyword.constData(), "PageRegion") == 0;
}

/// Returns the keywords of the group's options that the page shows.
std::vector<QByteArray> shownKeywords(const host::PpdOptions &options, const host::PpdGroup &group,
                                      const QStringList &claimedKeywords)
{
    std::vector<QByteArray> keywords;
    if (group.isInstallable)
        return keywords;
    std::ranges::copy_if(group.keywords, std::back_inserter(keywords), [&](const QByteArray &keyword) {
        return !isPaper(keyword) && !claimedKeywords.contains(QString::fromUtf8(keyword)) &&
               options.canBeChanged(keyword);
    });
    return keywords;
}

} // namespace

OptionsPage::OptionsPage(host::PpdFile &ppd, const QStringList &claimedKeywords, QWidget *parent)
    : QWidget(parent)
    , m_ppd(ppd)
    , m_groups(new QListWidget(this))
    , m_stack(new QStackedWidget(this))
{
    const host::PpdOptions options(m_ppd);
    for (const host::PpdGroup &group : options.groups()) {
        const std::vector<QByteArray> keywords = shownKeywords(options, group, claimedKeywords);
        if (!keywords.empty())
            addGroup(group.text, keywords);
    }
    layOut();
}

bool OptionsPage::hasOptions(const host::PpdFile &ppd, const QStringList &claimedKeywords)
{
    const host::PpdOptions options(ppd);
    return std::ranges::any_of(options.groups(), [&](const host::PpdGroup &group) {
        return !shownKeywords(options, group, claimedKeywords).empty();
    });
}

void OptionsPage::addGroup(const QString &text, const std::vector<QByteArray> &keywords)
{
    auto *const page = new OptionGroupPage(m_ppd, keywords, m_stack);
    page->setAccessibleName(text);
    connect(page, &OptionGroupPage::chosen, this, &OptionsPage::chosen);
    m_stack->addWidget(page);
    m_pages.push_back(page);
    auto *const item = new QListWidgetItem(text, m_groups);
    item->setToolTip(plainToolTip(text));
}

void OptionsPage::layOut()
{
    m_groups->setAccessibleName(tr("Option groups"));
    const int sign = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_groups->setIconSize(QSize(sign, sign));
    m_groups->setTextElideMode(Qt::ElideRight);
    m_groups->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_groups->setVisible(m_pages.size() > 1);
    m_groups->setCurrentRow(0);
    fitGroups();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_groups);
    layout->addWidget(m_stack, 1);
    if (m_pages.empty())
        m_stack->addWidget(new QLabel(tr("This printer has no other options."), m_stack));
    connect(m_groups, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
}

void OptionsPage::fitGroups()
{
    // Wide enough for the names and the icon of a conflict, up to a limit.
    const int sign = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) * 2;
    const int widest = fontMetrics().averageCharWidth() * 28;
    int names = 0;
    for (int row = 0; row < m_groups->count(); ++row)
        names = qMax(names, m_groups->fontMetrics().horizontalAdvance(m_groups->item(row)->text()));
    m_groups->setFixedWidth(qMin(names + sign + fontMetrics().height(), widest));
}

std::optional<QString> OptionsPage::shownGroup() const
{
    const QListWidgetItem *const item = m_groups->currentItem();
    return item ? std::optional(item->text()) : std::nullopt;
}

void OptionsPage::showGroup(const QString &text)
{
    const QList<QListWidgetItem *> found = m_groups->findItems(text, Qt::MatchExactly);
    if (!found.isEmpty())
        m_groups->setCurrentItem(found.first());
}

void OptionsPage::refresh()
{
    for (OptionGroupPage *const page : m_pages)
        page->refresh();
}

void OptionsPage::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    const QHash<QString, QStringList> byKeyword = host::sentencesByKeyword(conflicts);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->setConflicts(byKeyword);
        const QStringList sentences = m_pages[i]->conflictSentences();
        QListWidgetItem *const item = m_groups->item(static_cast<int>(i));
        item->setIcon(sentences.isEmpty() ? QIcon() : style()->standardIcon(QStyle::SP_MessageBoxWarning));
        item->setToolTip(plainToolTip(sentences.isEmpty() ? item->text() : sentences.join(u'\n')));
        item->setData(Qt::AccessibleDescriptionRole, sentences.join(u' '));
    }
}

} // namespace options
} // namespace dialog
