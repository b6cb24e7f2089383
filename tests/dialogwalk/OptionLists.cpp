// SPDX-License-Identifier: Apache-2.0
#include "OptionLists.h"

#include "Gestures.h"

#include <dialog/options/OptionControl.h>
#include <host/printer/PpdOptions.h>

namespace dialogwalk {

void OptionLists::turnToGroup(std::uint32_t number) const
{
    auto *const groups =
        Gestures::visibleNamed<QListWidget>(&m_dialog.window(), QStringLiteral("Option groups"));
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

} // namespace dialogwalk
