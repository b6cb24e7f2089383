// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/FormatArgument.h>

#include <QString>

#include <array>
#include <span>

namespace platform {
inline namespace text {

/// Fills the directives of the format from the arguments, in order.
///
/// Directives are those of printf (ISO C 7.21.6.1) without "%n": d i u o x X, f F e E g G a A, c s p, with
/// flags, width, precision (each also as "*") and length modifiers; further "%@", an object's
/// description, "%C" and "%S" as "%lc" and "%ls", "%%", and a position such as "%2$@". Numbers are written
/// the same way in every locale.
///
/// Type-safe: a directive that is unknown or unfinished, that finds no argument left, or that finds one
/// of a kind it cannot show, stands in the result as it is written; in the last case the argument is used
/// up, so that those after it keep their places. "%@" shows every kind. A number without a length modifier
/// keeps the size of its argument, "h" and "hh" cut it down. Widths and precisions count UTF-16 units and
/// are honoured up to 4096, lest a slip of the pen fills the memory.
QString stringWithFormat(const QString &format, std::span<const FormatArgument> arguments);

/// The arguments of a call as the list that the function above takes.
template<std::convertible_to<FormatArgument>... Arguments>
std::array<FormatArgument, sizeof...(Arguments)> formatArguments(const Arguments &...arguments)
{
    return {FormatArgument(arguments)...};
}

/// The same in the natural form of a call: stringWithFormat("%@ of %d", name, count).
template<std::convertible_to<FormatArgument>... Arguments>
QString stringWithFormat(const QString &format, const Arguments &...arguments)
{
    return stringWithFormat(format, std::span<const FormatArgument>(formatArguments(arguments...)));
}

} // namespace text
} // namespace platform
