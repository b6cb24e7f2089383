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
        saveRow(row.kind);
}

void OptionPDE13_v400_::saveRow(OptionKind kind)
{
    switch (kind) {
    case OptionKind::CutLabel:
        return saveSetting_CutLabel();
    case OptionKind::AutoCut:
        return saveSetting_AutoCut();
    case OptionKind::RemoveBlkSpace:
        return saveSetting_RemoveBlkSpace();
    default:
        return saveSetting(kind);
    }
}

std::int32_t OptionPDE13_v400_::indexForSaveAutoChain(const QWidget *control) const
{
    const auto *const box = qobject_cast<const QCheckBox *>(control);
    if (!box)
        return 0;
    const QCheckBox *const specialTapeBox = checkBox(OptionKind::SpecialTape);
    const bool specialTape = !controls::isHidden(specialTapeBox) && controls::state(specialTapeBox) != 0;
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
    return keywordAt(choices(kind), boxIndexToSave(optionRow(kind)));
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
    const QCheckBox *const box = checkBox(row.kind);
    if (!box)
        return markedElseDefault(choices(row.kind), row.keyword);
    return row.isOffOnSpecialTape ? indexForSaveAutoChain(box) : controls::state(box);
}

int OptionPDE13_v400_::countIndexToSave() const
{
    const PDEChoiceList *const counts = choices(OptionKind::CutLabel);
    const char *const keyword = optionRow(OptionKind::CutLabel).keyword;
    // Typing and stepping mark the choice of the count. If nothing is marked while the field is loaded, the
    // minimum count is saved rather than the default.
    return mCutEveryTxBx ? indexOfMarkedOption(counts, QLatin1String(keyword))
                         : markedElseDefault(counts, keyword);
}

QString OptionPDE13_v400_::chainedAutoCutToSave() const
{
    const int index = mCutEveryTxBx ? indexForSaveAutoChain(checkBox(OptionKind::CutLabel))
                                    : markedElseDefault(choices(OptionKind::AutoCut),
                                                        optionRow(OptionKind::AutoCut).keyword);
    return index == 1 ? QStringLiteral("ON") : QStringLiteral("OFF");
}

void OptionPDE13_v400_::saveSetting(OptionKind kind)
{
    if (choices(kind) && printSettings)
        sendChoice(option(kind), choiceToSave(kind));
}

void OptionPDE13_v400_::saveSetting_AutoCut()
{
    if (mAutoCutHideKey_dec && printSettings)
        sendChoice(option(OptionKind::AutoCut), choiceToSave(OptionKind::AutoCut));
}

void OptionPDE13_v400_::saveSetting_CutLabel()
{
    if (!choices(OptionKind::CutLabel) || !printSettings)
        return;
    const std::optional<QString> count = choiceToSave(OptionKind::CutLabel);
    // Without its own box, the automatic cut follows the cut-every box and is written first.
    if (!mAutoCutHideKey_dec)
        sendChoice(option(OptionKind::AutoCut), choiceToSave(OptionKind::AutoCut));
    sendChoice(option(OptionKind::CutLabel), count);
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
        setDefaultChoices(option(row.kind), choices(row.kind), row.keyword, QLatin1String(row.keyword));
    return BasePDE13_v400_::shouldPrint();
}
