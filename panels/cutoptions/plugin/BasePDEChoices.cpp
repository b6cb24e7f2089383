// SPDX-License-Identifier: Apache-2.0
// The base panel's dealings with PPD choices and with the paper.
#include "BasePDE.h"

#include <platform/TextEncoding.h>
#include <ppd/PDEUtilsMethod13.h>
#include <ppd/TapeInfo.h>

std::optional<QString> BasePDE13_v400_::fileVerString() const
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "FileVersion");
}

bool BasePDE13_v400_::isDZPrinter() const
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "KvTapeType") == QStringLiteral("DZ");
}

bool BasePDE13_v400_::isHSTapePage() const
{
    TapeInfo paper;
    GetTapeInfo(printSession, pdePluginCallbackObject->printSettings(), pdePluginCallbackObject->pageFormat(),
                ppd, &paper);
    return paper.paperName && paper.paperName->startsWith(QStringLiteral("HS"));
}

const PDEChoice *BasePDE13_v400_::selectionForItem(int index, const QString &key,
                                                   const PDEChoiceList *choices, ItemTypes itemType)
{
    if (!choices || index < 0 || static_cast<std::size_t>(index) >= choices->size())
        return nullptr;
    const PDEChoice *const choice = (*choices)[static_cast<std::size_t>(index)].get();
    pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice->ppdTitle());
    updateMarkedSelections(itemType);
    return choice;
}

int BasePDE13_v400_::indexOfMarkedOption(const PDEChoiceList *choices, const QString &key) const
{
    const ppd_choice_t *const marked = ppd ? ppdFindMarkedChoice(ppd, key.toUtf8().constData()) : nullptr;
    if (!marked)
        return -1;
    const std::optional<QString> keyword = PDEChoice(const_cast<ppd_choice_t *>(marked)).ppdTitle();
    if (!choices || !keyword)
        return 0;
    const auto found =
        std::ranges::find(*choices, keyword, [](const auto &choice) { return choice->ppdTitle(); });
    return found == choices->end() ? 0 : static_cast<int>(found - choices->begin());
}

int BasePDE13_v400_::indexOfDefaultOption(const PDEChoiceList *choices)
{
    if (!choices || choices->empty())
        return 0;
    const auto found =
        std::ranges::find_if(*choices, [](const auto &choice) { return choice->isDefaultChoice(); });
    return found == choices->end() ? -1 : static_cast<int>(found - choices->begin());
}

std::unique_ptr<PDEChoiceList> BasePDE13_v400_::setDefaultChoices(const ppd_option_t *option,
                                                                  const PDEChoiceList *choices,
                                                                  const char *cStrKey, const QString &nStrKey)
{
    if (!option || !ppd || ppdFindMarkedChoice(ppd, cStrKey))
        return nullptr;
    const int index = indexOfDefaultOption(choices);
    // Without a default there is nothing to mark: the printer keeps its own.
    if (index < 0 || index >= option->num_choices)
        return nullptr;
    const std::optional<QString> choice =
        platform::TextEncoding::utf8().decode(option->choices[index].choice);
    // With replacement characters the keyword would be that of another choice.
    if (!choice)
        return nullptr;
    pdePluginCallbackObject->willChangePPDOptionKeyValue(nStrKey, choice);
    return PDEUtilsMethod13::arrayFromPPDOption(const_cast<ppd_option_t *>(option));
}
