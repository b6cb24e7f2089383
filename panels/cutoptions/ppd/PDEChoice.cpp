// SPDX-License-Identifier: Apache-2.0
#include "PDEChoice.h"

#include <platform/TextEncoding.h>

#include <cstring>

using platform::TextEncoding;

std::unique_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t *choice)
{
    return std::make_unique<PDEChoice>(choice);
}

PDEChoice::PDEChoice(ppd_choice_t *choice)
    : m_choice(choice)
{
}

const std::optional<QString> &PDEChoice::userTitle() const
{
    if (!m_userTitle)
        m_userTitle = TextEncoding::utf8().decode(m_choice->text);
    return *m_userTitle;
}

const std::optional<QString> &PDEChoice::ppdTitle() const
{
    if (!m_ppdTitle)
        m_ppdTitle = TextEncoding::ascii().decode(m_choice->choice);
    return *m_ppdTitle;
}

bool PDEChoice::isDefaultChoice() const
{
    return isDefaultOfOption(m_choice->option, m_choice->choice);
}

QString PDEChoice::description() const
{
    const ppd_option_t *const option = m_choice->option;
    const auto position = m_choice - option->choices + 1;
    const QString absent = QStringLiteral("(null)");
    // One call for all places: a text of the PPD may itself hold "%1", which a further call would fill.
    return QStringLiteral("<%1 0x%2 userTitle:\"%3\" ppdTitle:\"%4\" marked:%5 choice:%6 of %7>")
        .arg(QStringLiteral("PDEChoice"), QString::number(reinterpret_cast<quintptr>(this), 16),
             userTitle().value_or(absent), ppdTitle().value_or(absent),
             m_choice->marked ? QStringLiteral("YES") : QStringLiteral("NO"), QString::number(position),
             QString::number(option->num_choices));
}

bool isDefaultOfOption(const ppd_option_t *option, const char *keyword)
{
    return std::strncmp(keyword, option->defchoice, PPD_MAX_NAME) == 0;
}
