// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QStringView>

#include <optional>

namespace platform {
inline namespace text {

/// One directive of a format string, taken apart: "%", an argument's position, flags, width, precision,
/// length modifier, conversion. Read by stringWithFormat().
struct FormatDirective {
    /// Widths and precisions beyond this are cut down to it.
    static constexpr int largestExtent = 4096;

    enum class Length { None, Char, Short, Wide };

    /// Reads the directive whose "%" is at start, of whatever conversion, known or not.
    static FormatDirective read(QStringView format, qsizetype start);

    /// The position after the directive in the format string.
    qsizetype end = 0;
    /// The position of its argument, counted from 1; nothing for the next one.
    std::optional<int> position;
    QByteArray flags;
    /// Whether width and precision are "*", to be taken from the arguments.
    bool starWidth = false;
    bool starPrecision = false;
    std::optional<int> width;
    std::optional<int> precision;
    Length length = Length::None;
    /// The last character; 0 when the format string ends before it.
    char16_t conversion = 0;
};

} // namespace text
} // namespace platform
