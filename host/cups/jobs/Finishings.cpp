// SPDX-License-Identifier: Apache-2.0
#include "Finishings.h"

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

constexpr const char *noneName = "None";

/// Chooses "None" for each option that stands for a finishing.
std::vector<NamedValue> choicesWithoutFinishings(const PpdFile &ppd, const std::vector<PpdFinishing> &all)
{
    std::vector<NamedValue> choices;
    for (const PpdFinishing &finishing : all) {
        for (const auto &[keyword, choice] : finishing.choices) {
            const std::optional<PpdOption> option = PpdOptions(ppd).option(keyword);
            const bool hasNone = option && std::ranges::find(option->choices, noneName, &PpdChoice::name) !=
                                               option->choices.end();
            if (hasNone && !findValue(choices, keyword))
                choices.push_back({keyword, noneName});
        }
    }
    return choices;
}

} // namespace

QByteArray finishingsOf(const std::vector<PpdFinishing> &finishings,
                        const std::function<std::optional<QByteArray>(const QByteArray &keyword)> &choiceOf)
{
    QByteArrayList numbers;
    for (const PpdFinishing &finishing : finishings) {
        const bool isChosen = std::ranges::all_of(
            finishing.choices, [&](const auto &choice) { return choiceOf(choice.first) == choice.second; });
        if (isChosen && finishing.number != noFinishing)
            numbers.append(QByteArray::number(finishing.number));
    }
    return numbers.isEmpty() ? QByteArray::number(noFinishing) : numbers.join(',');
}

std::vector<NamedValue> choicesOfFinishings(const PpdFile &ppd, const QByteArray &value)
{
    const std::vector<PpdFinishing> all = PpdOptions(ppd).finishings();
    if (value == "none" || value == QByteArray::number(noFinishing))
        return choicesWithoutFinishings(ppd, all);
    std::vector<NamedValue> choices;
    for (const QByteArray &part : value.split(',')) {
        const QByteArray wanted = part.trimmed();
        const auto found = std::ranges::find_if(all, [&](const PpdFinishing &each) {
            return wanted == QByteArray::number(each.number) || wanted == each.keyword;
        });
        if (found == all.end())
            return {};
        for (const auto &[keyword, choice] : found->choices)
            choices.push_back({keyword, choice});
    }
    return choices;
}

} // namespace jobs
} // namespace cups
} // namespace host
