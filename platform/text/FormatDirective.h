// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QStringView>

#include <optional>

namespace platform {
inline namespace text {

/// One parsed directive of a format string: "%", the argument's position, flags, width, precision, length
/// modifier, conversion. stringWithFormat() uses it.
struct FormatDirective {
    /// The maximum width and precision; larger values are reduced to it.
    static constexpr int maxExtent = 4096;

    /// The length modifier: none, "hh", "h", or one of "l", "q", "j", "z", "t" and "L".
    enum class Length { None, Char, Short, Wide };

    /// Parses the directive whose "%" is at the position start, with a known or unknown conversion.
    static FormatDirective read(QStringView format, qsizetype start);

    /// The position in the format string after the directive.
    qsizetype end = 0;
    /// The position of the argument, counted from 1; absent for the next argument.
    std::optional<int> position;
    /// The flag characters, as in the format string.
    QByteArray flags;
    /// Whether width and precision are "*", which means that they are read from the arguments.
    bool starWidth = false;
    bool starPrecision = false;
    /// Absent if the directive does not state them. A "." without digits is a precision of 0.
    std::optional<int> width;
    std::optional<int> precision;
    Length length = Length::None;
    /// The conversion, which is the last character; 0 if the format string ends before it.
    char16_t conversion = 0;
};

} // namespace text
} // namespace platform
