// SPDX-License-Identifier: Apache-2.0
// Passes every setting to the dialog, and checks the options before a job.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/TextEncoding.h>

#include <algorithm>

using platform::TextEncoding;

namespace {

/// Returns the name of the choice at the index, which is limited to the range of the list; absent without
/// choices.
std::optional<QString> keywordAt(const PDEChoiceList *list, int index)
{
    if (!list || list->empty())
        return std::nullopt;
    const int last = static_cast<int>(list->size()) - 1;
    const PDEChoice &chosen = *(*list)[static_cast<std::size_t>(std::clamp(index, 0, last))];
    return TextEncoding::utf8().decode(chosen.choice()->choice);
}

} // namespace

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

void OptionPDE13_v400_::sendChoice(const ppd_option_t *option, const std::optional<QString> &choice)
{
    const std::optional<QString> keyword =
        option ? TextEncoding::utf8().decode(option->keyword) : std::nullopt;
    if (keyword && choice)
        pdePluginCallbackObject->willChangePPDOptionKeyValue(*keyword, choice);
}

std::optional<QString> OptionPDE13_v400_::choiceToSave(OptionKind kind) const
{
    if (kind == OptionKind::CutLabel)
        return keywordAt(choices(kind), countIndexToSave());
    if (kind == OptionKind::AutoCut && !mAutoCutHideKey_dec)
        return chainedAutoCutToSave();
    return keywordAt(choices(kind), boxIndexToSave(row(kind)));
}

std::optional<QString> OptionPDE13_v400_::choiceShown(OptionKind kind) const
{
    const bool chained = kind == OptionKind::AutoCut && !mAutoCutHideKey_dec;
    const QCheckBox *const box = checkBox(chained ? OptionKind::CutLabel : kind);
    if (kind == OptionKind::CutLabel || !controls::isShown(box))
        return choiceToSave(kind);
    if (chained)
        return controls::state(box) == 1 ? QStringLiteral("ON") : QStringLiteral("OFF");
    return keywordAt(choices(kind), controls::state(box));
}

int OptionPDE13_v400_::boxIndexToSave(const OptionRow &row) const
{
    const QCheckBox *const box = this->*row.box;
    if (!box)
        return markedElseDefault((this->*row.choices).get(), row.keyword);
    return row.saveIndex == SaveIndex::AutoChain ? indexForSaveAutoChain(box) : controls::state(box);
}

int OptionPDE13_v400_::countIndexToSave() const
{
    const OptionRow &row = OptionPDE13_v400_::row(OptionKind::CutLabel);
    // Typing and stepping mark the choice of the count. If nothing is marked while the field is loaded, the
    // minimum count is saved rather than the default.
    return mCutEveryTxBx ? indexOfMarkedOption(mCutEvery_Choices.get(), QLatin1String(row.keyword))
                         : markedElseDefault(mCutEvery_Choices.get(), row.keyword);
}

QString OptionPDE13_v400_::chainedAutoCutToSave() const
{
    const int index = mCutEveryTxBx
                          ? indexForSaveAutoChain(mCutEveryChkBx)
                          : markedElseDefault(mAutoCut_Choices.get(), row(OptionKind::AutoCut).keyword);
    return index == 1 ? QStringLiteral("ON") : QStringLiteral("OFF");
}

void OptionPDE13_v400_::saveSetting(OptionKind kind)
{
    const OptionRow &row = OptionPDE13_v400_::row(kind);
    if (this->*row.choices && printSettings)
        sendChoice(this->*row.option, choiceToSave(kind));
}

void OptionPDE13_v400_::saveSetting_AutoCut()
{
    if (mAutoCutHideKey_dec && printSettings)
        sendChoice(mAutoCut_Option, choiceToSave(OptionKind::AutoCut));
}

void OptionPDE13_v400_::saveSetting_CutLabel()
{
    if (!mCutEvery_Choices || !printSettings)
        return;
    const std::optional<QString> count = choiceToSave(OptionKind::CutLabel);
    // Without its own box, the automatic cut follows the cut-every box and is written first.
    if (!mAutoCutHideKey_dec)
        sendChoice(mAutoCut_Option, choiceToSave(OptionKind::AutoCut));
    sendChoice(mCutEvery_Option, count);
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
