// SPDX-License-Identifier: Apache-2.0
#include "Fields.h"

#include "Gestures.h"
#include "Hands.h"

#include <host/PpdOptions.h>
#include <host/dialog/OptionControl.h>
#include <host/dialog/PageOptions.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

template<typename Widget>
Widget *visibleNamed(const QWidget *window, const QString &accessibleName)
{
    for (Widget *const each : window->findChildren<Widget *>()) {
        if (each->accessibleName() == accessibleName && each->isVisible())
            return each;
    }
    return nullptr;
}

QCheckBox *boxWithText(const QWidget *parent, const QString &text)
{
    for (QCheckBox *const each : parent->findChildren<QCheckBox *>()) {
        if (each->text().remove(u'&') == text)
            return each;
    }
    return nullptr;
}

} // namespace

PaperRows::PaperRows(const WalkedDialog &dialog)
    : m_list(visibleNamed<QListWidget>(&dialog.window(), QStringLiteral("Paper")))
{
    if (!m_list || !dialog.setup().hasPpd())
        return;
    for (const host::PpdPaper &paper : dialog.setup().ppd().papers()) {
        for (QListWidgetItem *const item : m_list->findItems(paper.text, Qt::MatchExactly))
            m_names[m_list->row(item)] = paper.name;
    }
}

std::optional<QByteArray> PaperRows::current() const
{
    const auto found = m_names.constFind(m_list->currentRow());
    return found == m_names.constEnd() ? std::nullopt : std::optional(*found);
}

QByteArray PaperRows::someOfKind(std::uint32_t number) const
{
    QMap<QByteArray, QList<QByteArray>> kinds;
    for (const QByteArray &name : m_names) {
        const QByteArray kind = name.left(2);
        const bool isTape = kind != "DC" && kind != "AV" && kind != "FL" && kind != "HS";
        kinds[isTape ? QByteArray() : kind].append(name);
    }
    const QList<QByteArray> &kind = kinds.values()[static_cast<qsizetype>(number) % kinds.size()];
    return kind[static_cast<qsizetype>(number / 8) % kind.size()];
}

void PaperRows::click(const QByteArray &name) const
{
    const int row = m_names.key(name, -1);
    ASSERT_GE(row, 0) << name.constData();
    Gestures::clickRow(m_list, row);
    EXPECT_EQ(m_list->currentRow(), row);
}

void OptionLists::turnToGroup(std::uint32_t number) const
{
    auto *const groups = visibleNamed<QListWidget>(&m_dialog.window(), QStringLiteral("Groups of options"));
    if (!groups)
        return;
    Gestures::clickRow(groups, static_cast<int>(number % static_cast<std::uint32_t>(groups->count())));
}

std::vector<QComboBox *> OptionLists::lists() const
{
    std::vector<QComboBox *> lists;
    for (dialog::OptionControl *const each : m_dialog.window().findChildren<dialog::OptionControl *>()) {
        auto *const list = each->isVisible() ? each->findChild<QComboBox *>() : nullptr;
        // Without an entry there is nothing to choose from.
        if (list && list->isVisible() && list->count() > 0)
            lists.push_back(list);
    }
    return lists;
}

OptionTexts OptionLists::chosenIn(const QComboBox *list) const
{
    const auto *const control = qobject_cast<const dialog::OptionControl *>(list->parentWidget());
    const std::optional<host::PpdOption> option =
        host::PpdOptions(m_dialog.setup().ppd()).option(control->keyword());
    return {{control->keyword(), option->choices[static_cast<std::size_t>(list->currentIndex())].name}};
}

std::optional<OptionTexts> OptionLists::pick(std::uint32_t number) const
{
    turnToGroup(number);
    const std::vector<QComboBox *> all = lists();
    if (all.empty())
        return std::nullopt;
    QComboBox *const list = all[number / 8 % all.size()];
    // The last entry may open fields for a free value.
    const int row = static_cast<int>(number / 64 % static_cast<std::uint32_t>(list->count()));
    if (list->itemText(row).endsWith(u'\u2026') || !Gestures::pickRow(list, row))
        return std::nullopt;
    return chosenIn(list);
}

std::optional<OptionTexts> OptionLists::stepByKey(std::uint32_t number) const
{
    turnToGroup(number);
    const std::vector<QComboBox *> all = lists();
    if (all.empty())
        return std::nullopt;
    QComboBox *const list = all[number / 8 % all.size()];
    const int before = list->currentIndex();
    const int next = before + (number / 64 % 2 == 0 ? 1 : -1);
    if (before < 0 || next < 0 || next >= list->count() || list->itemText(next).endsWith(u'\u2026'))
        return std::nullopt;
    Gestures::pressIn(list, next > before ? Qt::Key_Down : Qt::Key_Up);
    return chosenIn(list);
}

PageFields::PageFields(const WalkedDialog &dialog)
    : copies(nullptr)
    , collate(nullptr)
    , pages(nullptr)
    , lastFirst(nullptr)
{
    const auto *const options = dialog.window().findChild<dialog::PageOptions *>();
    copies = options->findChild<QSpinBox *>();
    collate = boxWithText(options, QStringLiteral("Set by set"));
    lastFirst = boxWithText(options, QStringLiteral("Last page first"));
    for (QLineEdit *const each : options->findChildren<QLineEdit *>(Qt::FindDirectChildrenOnly))
        pages = each;
}

} // namespace dialogwalk
