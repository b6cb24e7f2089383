// SPDX-License-Identifier: Apache-2.0
#include "PrinterOptions.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cstring>

namespace rollcutter {

namespace {

constexpr const char *customName = "Custom";

/// The sections of a PPD in the order in which libcups interprets their code.
constexpr ppd_section_t sections[] = {PPD_ORDER_DOCUMENT, PPD_ORDER_ANY, PPD_ORDER_PROLOG, PPD_ORDER_PAGE};

/// Whether the code of the other option is interpreted after that of the option.
bool isLater(const ppd_option_t &other, const ppd_option_t &option)
{
    const auto *const section = std::ranges::find(sections, option.section);
    const auto *const otherSection = std::ranges::find(sections, other.section);
    if (otherSection == std::ranges::end(sections))
        return false;
    return section == otherSection ? other.order > option.order : otherSection > section;
}

/// The fields that the code sets, as in "<</cupsRowStep 3>>setpagedevice".
QSet<QString> fieldsIn(const QByteArray &code)
{
    static const QRegularExpression field(QStringLiteral("/(\\w+)\\s+-?[0-9]"));
    QSet<QString> fields;
    for (auto match = field.globalMatch(QString::fromLatin1(code)); match.hasNext();)
        fields.insert(match.next().captured(1));
    return fields;
}

/// Whether the code of a custom choice uses the number, which lies below the dictionary that the code begins:
/// "<</cupsRowStep 3 -1 roll>>setpagedevice". In CUPS's own drivers, the code moves something else.
bool isNumberUsed(const QByteArray &code)
{
    return !code.contains("<<") || code.contains(" 3 -1 roll");
}

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

bool PrinterOptions::hasCustom(const QString &keyword) const
{
    return m_ppd && ppdFindCustomOption(m_ppd, keyword.toUtf8().constData());
}

std::optional<std::pair<int, int>> PrinterOptions::customRange(const QString &keyword) const
{
    const ppd_cparam_t *const number = customNumber(keyword);
    const ppd_choice_t *const custom = number ? ppdFindChoice(option(keyword), customName) : nullptr;
    if (!custom || !isNumberUsed(custom->code))
        return std::nullopt;
    return std::pair(number->minimum.custom_int, number->maximum.custom_int);
}

bool PrinterOptions::isSent(const QString &keyword) const
{
    const ppd_option_t *const own = option(keyword);
    if (!own)
        return false;
    QSet<QString> fields;
    for (const OptionChoice &choice : choices(keyword))
        fields.unite(fieldsIn(choice.code));
    if (fields.isEmpty())
        return true;
    for (const ppd_option_t *other = ppdFirstOption(m_ppd); other; other = ppdNextOption(m_ppd)) {
        if (!isLater(*other, *own))
            continue;
        const QString otherKeyword = QString::fromUtf8(other->keyword);
        const std::optional<QString> chosen = current(otherKeyword);
        for (const OptionChoice &choice : choices(otherKeyword)) {
            if (choice.name == chosen && fieldsIn(choice.code).intersects(fields))
                return false;
        }
    }
    return true;
}

} // namespace rollcutter
