// SPDX-License-Identifier: Apache-2.0
#include "StripRules.h"

#include <table/OptionTable.h>

#include <algorithm>

namespace striprules {

namespace {

/// Returns the effective choice of the option as the PPD spells it, and its index in the PPD's list; absent
/// without a choice, and -1 for a choice that is not listed.
std::optional<std::pair<QString, std::ptrdiff_t>> effectiveChoice(ppd_file_t *ppd, const PDEChoices &choices,
                                                                  const char *keyword)
{
    ppd_option_t *const option = ppdFindOption(ppd, keyword);
    const auto given = std::ranges::find(choices, QLatin1String(keyword), &PDEChoices::value_type::first);
    const ppd_choice_t *choice = nullptr;
    if (given != choices.end())
        choice = option ? ppdFindChoice(option, given->second.toUtf8().constData()) : nullptr;
    else if (option && !(choice = ppdFindMarkedChoice(ppd, keyword)))
        choice = ppdFindChoice(option, option->defchoice);
    if (choice)
        return std::pair(QString::fromUtf8(choice->choice), choice - option->choices);
    if (given != choices.end())
        return std::pair(given->second, std::ptrdiff_t(-1));
    return std::nullopt;
}

bool isOn(ppd_file_t *ppd, const PDEChoices &choices, const char *keyword)
{
    const auto choice = effectiveChoice(ppd, choices, keyword);
    return choice && (choice->second < 0 ? choice->first == QStringLiteral("ON") : choice->second == 1);
}

} // namespace

CutSettings cutSettings(ppd_file_t *ppd, const PDEChoices &choices)
{
    CutSettings settings;
    for (const OptionRow &row : optionTable) {
        if (row.effect)
            settings.*row.effect = isOn(ppd, choices, row.keyword);
    }
    const auto count = effectiveChoice(ppd, choices, optionRow(OptionKind::CutLabel).keyword);
    settings.labelsPerCut = std::max(1, count ? count->first.toInt() : 1);
    return settings;
}

PDELabelEnd labelEnd(const CutSettings &settings, std::size_t position, std::size_t count)
{
    PDELabelEnd end;
    if (settings.specialTape)
        return end;
    const bool last = position + 1 == count;
    const bool turn = (position + 1) % static_cast<std::size_t>(settings.labelsPerCut) == 0;
    if (last)
        end.fullCut = (settings.automaticCut || settings.cutAtEnd) && !settings.chainPrint;
    else
        end.fullCut = settings.automaticCut && turn;
    end.halfCut = settings.halfCut && !end.fullCut && !last;
    end.cutMark = settings.cutMark && !end.fullCut;
    end.held = settings.chainPrint && last;
    return end;
}

PDEStripEffects effects(const CutSettings &settings, std::size_t count)
{
    PDEStripEffects effects{
        .cutting = PDECutting::Known, .mirror = settings.mirror, .removeBlank = settings.removeBlank};
    effects.ends.reserve(count);
    for (std::size_t position = 0; position < count; ++position)
        effects.ends.push_back(labelEnd(settings, position, count));
    return effects;
}

} // namespace striprules
