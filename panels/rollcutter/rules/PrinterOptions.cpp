// SPDX-License-Identifier: Apache-2.0
#include "PrinterOptions.h"

#include <algorithm>
#include <cstring>

namespace rollcutter {

namespace {

constexpr const char *customName = "Custom";

} // namespace

PrinterOptions::PrinterOptions(ppd_file_t *ppd, PDEChoices given)
    : m_ppd(ppd)
    , m_given(std::move(given))
{
}

ppd_option_t *PrinterOptions::option(const QString &keyword) const
{
    return m_ppd ? ppdFindOption(m_ppd, keyword.toUtf8().constData()) : nullptr;
}

QString PrinterOptions::text(const QString &keyword) const
{
    const ppd_option_t *const found = option(keyword);
    return found ? QString::fromUtf8(found->text) : QString();
}

std::vector<OptionChoice> PrinterOptions::choices(const QString &keyword) const
{
    std::vector<OptionChoice> listed;
    const ppd_option_t *const found = option(keyword);
    for (int i = 0; found && i < found->num_choices; ++i) {
        const ppd_choice_t &choice = found->choices[i];
        if (std::strcmp(choice.choice, customName) != 0)
            listed.push_back(
                {QString::fromUtf8(choice.choice), QString::fromUtf8(choice.text), QByteArray(choice.code)});
    }
    return listed;
}

std::optional<QString> PrinterOptions::current(const QString &keyword) const
{
    const auto given = std::ranges::find(m_given, keyword, &PDEChoices::value_type::first);
    if (given != m_given.end())
        return given->second;
    const ppd_option_t *const found = option(keyword);
    if (!found)
        return std::nullopt;
    const ppd_choice_t *const marked = ppdFindMarkedChoice(m_ppd, found->keyword);
    if (!marked)
        return *found->defchoice ? std::optional(QString::fromUtf8(found->defchoice)) : std::nullopt;
    const ppd_cparam_t *const number =
        std::strcmp(marked->choice, customName) == 0 ? customNumber(keyword) : nullptr;
    return number ? QStringLiteral("Custom.%1").arg(number->current.custom_int)
                  : QString::fromUtf8(marked->choice);
}

const ppd_cparam_t *PrinterOptions::customNumber(const QString &keyword) const
{
    ppd_coption_t *const custom = m_ppd ? ppdFindCustomOption(m_ppd, keyword.toUtf8().constData()) : nullptr;
    if (!custom || cupsArrayCount(custom->params) != 1)
        return nullptr;
    const auto *const parameter = static_cast<const ppd_cparam_t *>(cupsArrayIndex(custom->params, 0));
    return parameter->type == PPD_CUSTOM_INT ? parameter : nullptr;
}

std::optional<std::pair<int, int>> PrinterOptions::customRange(const QString &keyword) const
{
    const ppd_cparam_t *const number = customNumber(keyword);
    if (!number)
        return std::nullopt;
    return std::pair(number->minimum.custom_int, number->maximum.custom_int);
}

} // namespace rollcutter
