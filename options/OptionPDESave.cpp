// SPDX-License-Identifier: Apache-2.0
// Every setting handed to the dialog, and the check before a job.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/TextEncoding.h>

#include <algorithm>

using platform::TextEncoding;

void OptionPDE13_v400_::setValuesToKey()
{
    for (const OptionRow &row : optionTable)
        (this->*row.save)();
}

std::int32_t OptionPDE13_v400_::indexForSaveAutoChain(const QWidget *control) const
{
    const auto *const box = qobject_cast<const QCheckBox *>(control);
    if (!box)
        return 0;
    const bool specialTape =
        !controls::isHidden(mSpecialTapeChkBx) && controls::state(mSpecialTapeChkBx) != 0;
    return specialTape ? 0 : controls::state(box);
}

int OptionPDE13_v400_::markedElseDefault(const PDEChoiceList *list, const char *keyword) const
{
    const int marked = indexOfMarkedOption(list, QLatin1String(keyword));
    return marked == -1 ? indexOfDefaultOption(list) : marked;
}

void OptionPDE13_v400_::sendChoice(const ppd_option_t *option, const PDEChoiceList *list, int index)
{
    if (!option || !list || list->empty())
        return;
    const int last = static_cast<int>(list->size()) - 1;
    const PDEChoice &chosen = *(*list)[static_cast<std::size_t>(std::clamp(index, 0, last))];
    const std::optional<QString> keyword = TextEncoding::utf8().decode(option->keyword);
    const std::optional<QString> choice = TextEncoding::utf8().decode(chosen.choice()->choice);
    if (keyword && choice)
        pdePluginCallbackObject->willChangePPDOptionKeyValue(*keyword, choice);
}

void OptionPDE13_v400_::saveSetting(OptionKind kind)
{
    const OptionRow &row = OptionPDE13_v400_::row(kind);
    if (this->*row.choices && printSettings)
        saveRow(row);
}

void OptionPDE13_v400_::saveRow(const OptionRow &row)
{
    const QCheckBox *const box = this->*row.box;
    const PDEChoiceList *const list = (this->*row.choices).get();
    int index = 0;
    if (!box)
        index = markedElseDefault(list, row.keyword);
    else
        index = row.saveIndex == SaveIndex::AutoChain ? indexForSaveAutoChain(box) : controls::state(box);
    sendChoice(this->*row.option, list, index);
}

void OptionPDE13_v400_::saveSetting_AutoCut()
{
    if (mAutoCutHideKey_dec && printSettings)
        saveRow(row(OptionKind::AutoCut));
}

void OptionPDE13_v400_::saveSetting_CutLabel()
{
    if (!mCutEvery_Choices || !printSettings)
        return;
    const OptionRow &row = OptionPDE13_v400_::row(OptionKind::CutLabel);
    // The count reaches the job through the choice that typing and stepping have marked, so a loaded field
    // takes nothing else: with nothing marked it is the smallest count, not the default.
    const int index = mCutEveryTxBx ? indexOfMarkedOption(mCutEvery_Choices.get(), QLatin1String(row.keyword))
                                    : markedElseDefault(mCutEvery_Choices.get(), row.keyword);
    // Without a box of its own the automatic cut follows the cut-every box, and is written first.
    if (!mAutoCutHideKey_dec)
        saveChainedAutoCut();
    sendChoice(mCutEvery_Option, mCutEvery_Choices.get(), index);
}

void OptionPDE13_v400_::saveChainedAutoCut()
{
    const std::optional<QString> keyword =
        mAutoCut_Option ? TextEncoding::utf8().decode(mAutoCut_Option->keyword) : std::nullopt;
    if (!keyword)
        return;
    const int index = mCutEveryTxBx
                          ? indexForSaveAutoChain(mCutEveryChkBx)
                          : markedElseDefault(mAutoCut_Choices.get(), row(OptionKind::AutoCut).keyword);
    pdePluginCallbackObject->willChangePPDOptionKeyValue(*keyword, index == 1 ? QStringLiteral("ON")
                                                                              : QStringLiteral("OFF"));
}

void OptionPDE13_v400_::saveSetting_RemoveBlkSpace()
{
    readTapeState();
    enableRemoveBlankSpaceByTape();
    saveSetting(OptionKind::RemoveBlkSpace);
}

bool OptionPDE13_v400_::shouldPrint()
{
    for (const OptionRow &row : optionTable)
        setDefaultChoices(this->*row.option, (this->*row.choices).get(), row.keyword,
                          QLatin1String(row.keyword));
    return BasePDE13_v400_::shouldPrint();
}
