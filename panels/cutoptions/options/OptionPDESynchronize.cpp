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
        if (!(items & row.item) || !(this->*row.option))
            continue;
        const PDEChoiceList *const list = (this->*row.choices).get();
        this->*row.selection = choiceAt(list, markedElseDefault(list, row.keyword));
        if (row.boxSelection == row.selection)
            continue;
        const PDEChoiceList *const boxList = (this->*row.boxChoices).get();
        this->*row.boxSelection = choiceAt(boxList, markedElseDefault(boxList, row.boxKeyword));
    }
}

void OptionPDE13_v400_::PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                                   const std::optional<QString> &choice)
{
    if (!key || !choice)
        return;
    const auto changed = std::ranges::find_if(
        optionTable, [&](const OptionRow &row) { return *key == QLatin1String(row.keyword); });
    if (changed != optionTable.end())
        this->*changed->selection =
            PDEUtilsMethod13::findChoiceForString(choice, (this->*changed->choices).get());
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
        if (!mCutEvery_Choices || !mCutEvery_Selection)
            return;
        if (indexOf(mCutEvery_Choices.get(), mCutEvery_Selection) >= 0) {
            const QString count = QString::fromUtf8(mCutEvery_Selection->choice()->choice);
            showCount(count);
            if (mCutEveryStpr)
                mCutEveryStpr->setValue(platform::integerValue(count));
        }
    }
    // These two boxes keep the state that the user has set while the paper disables them.
    const bool onlyWhileEnabled = row.kind == OptionKind::RemoveBlkSpace || row.kind == OptionKind::CutMark;
    if (onlyWhileEnabled && !controls::isEnabled(this->*row.box))
        return;
    const int index = indexOf((this->*row.boxChoices).get(), this->*row.boxSelection);
    if (index >= 0)
        controls::setState(this->*row.box, index);
}

void OptionPDE13_v400_::checkChangeSettingWhenPageSizeChanged(const platform::Notification &)
{
    if (ppd && isHSTapePage()) {
        // The cutter cannot cut heat-shrink tube.
        ppdMarkOption(ppd, row(OptionKind::AutoCut).keyword, "OFF");
        updateMarkedSelections(ItemType::CutEvery);
        updateMarkedSelections(ItemType::AutoCut);
    }
    updateUI();
    enabledCheck_OP();
}
