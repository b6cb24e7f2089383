// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/FormatArgument.h>

#include <QString>

#include <array>
#include <span>

namespace platform {
inline namespace text {

/// Replaces the directives of the format with the arguments, in order.
///
/// Supports the directives of printf (ISO C 7.21.6.1) except "%n": d i u o x X, f F e E g G a A, c s p, with
/// flags, width, precision (each also as "*") and length modifiers; in addition "%@" for the description of
/// an object, "%C" and "%S" as "%lc" and "%ls", "%%", and positions such as "%2$@". Numbers have the same
/// form in every locale.
///
/// Type-safe: a directive that is unknown or incomplete, that has no argument left, or whose argument has a
/// type that it cannot show, is copied to the result unchanged; in the last case the argument is consumed, so
/// that later directives keep their arguments. "%@" shows every type. A number without a length modifier
/// keeps the size of its argument; "h" and "hh" truncate it. Widths and precisions count UTF-16 units and are
/// limited to 4096, so that a typing error does not fill the memory.
QString stringWithFormat(const QString &format, std::span<const FormatArgument> arguments);

/// Returns the arguments of a call as the list that stringWithFormat() expects.
template<std::convertible_to<FormatArgument>... Arguments>
std::array<FormatArgument, sizeof...(Arguments)> formatArguments(const Arguments &...arguments)
{
    return {FormatArgument(arguments)...};
}

/// This overload receives the arguments directly: stringWithFormat("%@ of %d", name, count).
template<std::convertible_to<FormatArgument>... Arguments>
QString stringWithFormat(const QString &format, const Arguments &...arguments)
{
    return stringWithFormat(format, std::span<const FormatArgument>(formatArguments(arguments...)));
}

} // namespace text
} // namespace platform
