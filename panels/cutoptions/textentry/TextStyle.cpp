// SPDX-License-Identifier: Apache-2.0
#include "TextStyle.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <string_view>

namespace textentry {

namespace {

using AsciiSet = std::bitset<128>;

struct StyleRow {
    std::int32_t style;
    /// The characters; a dash between two stands for all from the one to the other, and for itself at the
    /// end.
    std::string_view characters;
};

/// The styles that take less than all of ASCII.
constexpr std::array rows{
    StyleRow{WholeNumber, "0-9"},
    StyleRow{DecimalNumber, "0-9."},
    StyleRow{LettersDigitsAndSpace, "0-9A-Za-z "},
    StyleRow{Code39Text, "0-9A-Za-z $%+./-"},
    StyleRow{CodabarText, "0-9$+./:-"},
    StyleRow{CodabarTextWithStops, "0-9$+./:A-Da-d-"},
    StyleRow{PrintableAscii, " -~"},
    StyleRow{LabelText, "0-9A-Za-z !\"%'()*+,./:;<=>?_-"},
};

AsciiSet asciiSet(std::string_view characters)
{
    AsciiSet set;
    for (std::size_t index = 0; index < characters.size(); ++index) {
        const bool isRange = index + 2 < characters.size() && characters[index + 1] == '-';
        const char last = isRange ? characters[index + 2] : characters[index];
        for (char character = characters[index]; character <= last; ++character)
            set.set(static_cast<std::size_t>(character));
        index += isRange ? 2 : 0;
    }
    return set;
}

const AsciiSet *setOf(std::int32_t style)
{
    static const std::array<AsciiSet, rows.size()> sets = [] {
        std::array<AsciiSet, rows.size()> made;
        std::ranges::transform(rows, made.begin(), asciiSet, &StyleRow::characters);
        return made;
    }();
    const auto row = std::ranges::find(rows, style, &StyleRow::style);
    return row == rows.end() ? nullptr : &sets[static_cast<std::size_t>(row - rows.begin())];
}

} // namespace

bool hasCharacter(std::int32_t style, char16_t character)
{
    const AsciiSet *const set = setOf(style);
    return !set || (character < set->size() && set->test(character));
}

bool isNumeric(std::int32_t style)
{
    return style == WholeNumber || style == DecimalNumber;
}

} // namespace textentry
