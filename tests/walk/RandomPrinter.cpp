// SPDX-License-Identifier: Apache-2.0
#include "RandomPrinter.h"

namespace walk {

namespace {

using model::ChoiceDescription;
using model::OptionDescription;

const char *const keywords[] = {"KvCutLabel",    "KvCutAtEnd",       "KvMirror",
                                "KvAutoTapeCut", "KvHalfCut",        "KvChainPrint",
                                "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"};

/// A title: usually the option's own, now and then one that another option has too, one that the catalogue
/// knows, or an empty one.
QString randomText(Dice &dice, const QString &keyword)
{
    if (dice.percent(85))
        return keyword.mid(2);
    return dice.pick<QString>({"Cutting", "RS_HalfCut", "RS_STitle_Yes", "Half Cut", ""});
}

std::vector<ChoiceDescription> oddSwitchChoices(Dice &dice)
{
    const ChoiceDescription off{"OFF", "Off"};
    const ChoiceDescription on{"ON", "On"};
    switch (dice.below(6)) {
    case 0:
        return {};
    case 1:
        return {dice.percent(50) ? on : off};
    case 2:
        return {on, off};
    case 3:
        return {off, on, {"AUTO", "Automatic"}};
    case 4:
        return {{"No", "Never"}, {"Yes", "Always"}};
    default:
        return {{"AUTO", "Automatic"}, off, on};
    }
}

OptionDescription randomSwitch(Dice &dice, const QString &keyword)
{
    auto option = model::switchOption(keyword, randomText(dice, keyword), dice.percent(50));
    if (dice.percent(15))
        option.choices = oddSwitchChoices(dice);
    if (dice.percent(10))
        option.defaultChoice =
            dice.pick<std::optional<QString>>({std::nullopt, "on", "Off", "AUTO", "Unknown"});
    return option;
}

OptionDescription listedCounts(const QString &text, const QStringList &counts)
{
    OptionDescription option{"KvCutLabel", text, {}, counts.value(0)};
    for (const auto &count : counts)
        option.choices.push_back({count, count + " at once"});
    return option;
}

OptionDescription randomCounts(Dice &dice)
{
    const auto text = randomText(dice, "KvCutLabel");
    auto option = model::countOption("KvCutLabel", text, 1, 99, 1);
    if (dice.percent(50)) {
        const auto [first, last] =
            dice.pick<std::pair<int, int>>({{5, 8}, {1, 300}, {4, 4}, {0, 3}, {2, 50}});
        option = model::countOption("KvCutLabel", text, first, last, first);
    } else if (dice.percent(20)) {
        option = listedCounts(
            text, dice.pick<QStringList>(
                      {{"1", "2", "5", "10"}, {"A", "B", "C"}, {"OFF", "ON"}, {"9", "6", "3"}, {}}));
    }
    if (dice.percent(30))
        option.defaultChoice =
            dice.pick<std::optional<QString>>({std::nullopt, "1", "6", "10", "99", "100", "None"});
    return option;
}

/// Any subset of the nine, each size as likely as another.
std::uint32_t randomSubset(Dice &dice)
{
    std::uint32_t subset = 0;
    for (int missing = dice.below(10), left = 9; left > 0; --left) {
        if (dice.below(static_cast<std::size_t>(left)) < missing)
            --missing;
        else
            subset |= 1u << (left - 1);
    }
    return subset;
}

} // namespace

model::PrinterDescription randomPrinter(Dice &dice)
{
    model::PrinterDescription printer;
    const auto subset = randomSubset(dice);
    for (std::uint32_t bit = 0; bit < 9; ++bit) {
        const QString keyword = keywords[bit];
        if (!(subset >> bit & 1u))
            continue;
        printer.options.push_back(bit == 0 ? randomCounts(dice) : randomSwitch(dice, keyword));
        if (dice.percent(1))
            printer.options.back().keyword = keyword.toUpper();
    }
    if (dice.percent(90))
        printer.papers = QStringList{"24mm", "DC01", "AV01", "FL01", "HS24", "FLAT"};
    printer.tapeType = dice.pick<std::optional<QString>>({std::nullopt, "LX", "DZ", "DZ", "dz", ""});
    printer.autoCutObjHidden =
        dice.pick<std::optional<QString>>({std::nullopt, "False", "False", "True", "false", ""});
    return printer;
}

} // namespace walk
