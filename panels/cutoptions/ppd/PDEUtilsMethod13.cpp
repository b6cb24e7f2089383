// SPDX-License-Identifier: Apache-2.0
#include "PDEUtilsMethod13.h"

#include <platform/Geometry.h>
#include <platform/StaticText.h>
#include <platform/TextEncoding.h>

using platform::TextEncoding;

bool PDEUtilsMethod13::runningOn105OrLater()
{
    return true;
}

std::optional<QString> PDEUtilsMethod13::ppdAttrValStr(ppd_file_t *ppd, const char *keyword)
{
    const ppd_attr_t *const attribute = ppd ? ppdFindAttr(ppd, keyword, nullptr) : nullptr;
    return attribute ? TextEncoding::system().decode(attribute->value) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod13::ppdOptionTextStr(ppd_file_t *ppd, const char *keyword)
{
    const ppd_option_t *const option = ppd ? ppdFindOption(ppd, keyword) : nullptr;
    return option ? TextEncoding::system().decode(option->text) : std::nullopt;
}

bool PDEUtilsMethod13::isSupportedItem(ppd_file_t *ppd, const char *keyword)
{
    return ppdAttrValStr(ppd, keyword) == QStringLiteral("False");
}

QPointF PDEUtilsMethod13::originItem(ppd_file_t *ppd, const char *keyword)
{
    const std::optional<QString> value = ppdAttrValStr(ppd, keyword);
    return value && !value->isEmpty() ? platform::pointFromString(*value) : QPointF();
}

std::unique_ptr<PDEChoiceList> PDEUtilsMethod13::arrayFromPPDOption(ppd_option_t *option)
{
    if (!option)
        return nullptr;
    auto choices = std::make_unique<PDEChoiceList>();
    for (int index = 0; index < option->num_choices; ++index)
        choices->push_back(PDEChoice::choiceWithChoice(&option->choices[index]));
    return choices;
}

const PDEChoice *PDEUtilsMethod13::findChoiceForString(const std::optional<QString> &keyword,
                                                       const PDEChoiceList *choices)
{
    if (!choices)
        return nullptr;
    for (const std::unique_ptr<PDEChoice> &choice : *choices) {
        if (keyword ? choice->ppdTitle() == keyword : choice->isDefaultChoice())
            return choice.get();
    }
    return nullptr;
}

std::optional<QString> PDEUtilsMethod13::newOptionTitle(const ppd_option_t *option)
{
    return option ? TextEncoding::utf8().decode(option->text) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod13::newChoiceTitle(const ppd_choice_t *choice)
{
    return choice ? TextEncoding::utf8().decode(choice->text) : std::nullopt;
}

void PDEUtilsMethod13::setEnabledForText(std::uint8_t flag, QWidget *item)
{
    auto *const text = dynamic_cast<platform::TextColoring *>(item);
    if (!text)
        return;
    text->setTextColor(flag == 1 ? platform::ControlTextColor::Enabled
                                 : platform::ControlTextColor::Disabled);
}

std::size_t PDEUtilsMethod13::stringLengthConvertedToEncoding(const std::optional<QString> &text)
{
    if (!text)
        return 0;
    if (const std::optional<QByteArray> bytes = TextEncoding::system().encode(*text))
        return static_cast<std::size_t>(bytes->size());
    for (const TextEncoding &encoding : TextEncoding::available()) {
        if (const std::optional<QByteArray> bytes = encoding.encode(*text))
            return static_cast<std::size_t>(bytes->size());
    }
    return 0;
}

bool PDEUtilsMethod13::scanString(const QString &text, const QString &sought)
{
    // Sought nowhere, as an empty text has no place where something could stand; and nothing is
    // not something that can be found.
    return !text.isEmpty() && !sought.isEmpty() && text.contains(sought, Qt::CaseSensitive);
}

std::optional<QString> PDEUtilsMethod13::deleteString(const QString &text, const QString &sought)
{
    if (!scanString(text, sought))
        return std::nullopt;
    QString shortened = text;
    shortened.remove(text.indexOf(sought, 0, Qt::CaseSensitive), sought.size());
    return shortened;
}
