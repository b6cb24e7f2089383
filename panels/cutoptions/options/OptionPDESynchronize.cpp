// SPDX-License-Identifier: Apache-2.0
// Keeps selections, controls and PPD synchronized.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Numbers.h>
#include <ppd/PDEUtilsMethod13.h>

#include <algorithm>

namespace {

/// Returns the choice at the index; null if the index is out of range.
const PDEChoice *choiceAt(const PDEChoiceList *list, int index)
{
    if (!list || index < 0 || static_cast<std::size_t>(index) >= list->size())
        return nullptr;
    return (*list)[static_cast<std::size_t>(index)].get();
}

/// Returns the index of this choice object in the list, or -1.
int indexOf(const PDEChoiceList *list, const PDEChoice *choice)
{
    if (!list || !choice)
        return -1;
    const auto found = std::ranges::find(*list, choice, [](const auto &entry) { return entry.get(); });
    return found == list->end() ? -1 : static_cast<int>(found - list->begin());
}

} // namespace

void OptionPDE13_v400_::setPDEItems()
{
    for (const OptionRow &row : optionTable)
        updateUIItem(row.item);
    updateUIItem(ItemType::OptionPopUp);
}

void OptionPDE13_v400_::setPDEItems2()
{
    for (const OptionRow &row : optionTable)
        updateMarkedSelections(row.item);
}

void OptionPDE13_v400_::updateMarkedSelections(ItemTypes items)
{
    for (const OptionRow &row : optionTable) {
        if (!(items & row.item) || !option(row.kind))
            continue;
        fields(row.kind).selection = markedElseDefaultChoice(row.kind);
        if (row.edits != row.kind)
            mAutoCut_CutEvery_Selection = markedElseDefaultChoice(row.edits);
    }
}

const PDEChoice *OptionPDE13_v400_::markedElseDefaultChoice(OptionKind kind) const
{
    const PDEChoiceList *const list = choices(kind);
    return choiceAt(list, markedElseDefault(list, optionRow(kind).keyword));
}

const PDEChoice *OptionPDE13_v400_::boxSelection(const OptionRow &row) const
{
    return row.edits == row.kind ? selection(row.kind) : mAutoCut_CutEvery_Selection;
}

void OptionPDE13_v400_::PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                                   const std::optional<QString> &choice)
{
    if (!key || !choice)
        return;
    const auto changed = std::ranges::find_if(
        optionTable, [&](const OptionRow &row) { return *key == QLatin1String(row.keyword); });
    if (changed != optionTable.end())
        fields(changed->kind).selection =
            PDEUtilsMethod13::findChoiceForString(choice, choices(changed->kind));
}

void OptionPDE13_v400_::updateUIItem(ItemTypes items)
{
    if (items & ItemType::OptionPopUp) {
        if (mOptionPopUpButton)
            applyPreset(mOptionPopUpButton->selectedTag());
    } else {
        for (const OptionRow &row : optionTable) {
            if (items & row.item)
                updateRow(row);
        }
        if (mOptionPopUpButton)
            mOptionPopUpButton->selectItemWithTag(targetPopUpButtonTag());
    }
    enabledCheck_OP();
    if (mOptionView)
        mOptionView->update();
}

void OptionPDE13_v400_::updateRow(const OptionRow &row)
{
    if (row.kind == OptionKind::CutLabel) {
        const PDEChoice *const selected = selection(row.kind);
        if (!choices(row.kind) || !selected)
            return;
        if (indexOf(choices(row.kind), selected) >= 0) {
            const QString count = QString::fromUtf8(selected->choice()->choice);
            showCount(count);
            if (mCutEveryStpr)
                mCutEveryStpr->setValue(platform::integerValue(count));
        }
    }
    QCheckBox *const box = checkBox(row.kind);
    if (row.keepsStateWhileDisabled && !controls::isEnabled(box))
        return;
    const int index = indexOf(choices(row.edits), boxSelection(row));
    if (index >= 0)
        controls::setState(box, index);
}

void OptionPDE13_v400_::checkChangeSettingWhenPageSizeChanged(const platform::Notification &)
{
    if (ppd && isHSTapePage()) {
        // The cutter cannot cut heat-shrink tube.
        ppdMarkOption(ppd, optionRow(OptionKind::AutoCut).keyword, "OFF");
        updateMarkedSelections(ItemType::CutEvery);
        updateMarkedSelections(ItemType::AutoCut);
    }
    updateUI();
    enabledCheck_OP();
}
