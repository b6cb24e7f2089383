// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace textentry {

/// The styles of text that a formatter lets through, by their numbers in layout files. Numbers that have
/// no name here take any ASCII character.
enum TextStyle : std::int32_t {
    AnyText = 0,
    AsciiText = 1,
    WholeNumber = 2,
    DecimalNumber = 4,
    CalendarDate = 5,
    LettersDigitsAndSpace = 6,
    Code39Text = 7,
    CodabarText = 8,
    CodabarTextWithStops = 9,
    PrintableAscii = 10,
    LabelText = 11,
};

/// Whether the style has the character, one of ASCII. AnyText has every one.
bool hasCharacter(std::int32_t style, char16_t character);

/// Whether texts of the style are numbers, whose value is held to bounds.
bool isNumeric(std::int32_t style);

} // namespace textentry
