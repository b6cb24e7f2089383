// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/FormatString.h>

#include <QString>

#include <cstdint>
#include <span>

/// Messages for diagnosing the plug-in. Nothing in the plug-in calls them; the bundle exports
/// them so that a call put in for an afternoon, or a debugger, finds them.
///
/// Each function comes twice: once exported under its plain name, with the arguments as a list of
/// values that know their kinds, and once as a template in the natural form of a call,
/// debugLog(0, "%@ has %d choices", panel, count), which makes that list. Directives are those of
/// platform::stringWithFormat(). A positive level silences the call, and its arguments are then not
/// even described.

/// Writes "DEBUG: ", the message in UTF-8 and a line end to standard error when the level is 0 or below.
/// Half a surrogate pair, which UTF-8 cannot say, is written as "?".
extern "C" KV_EXPORT void debugLog(std::int32_t level, const QString &format,
                                   std::span<const platform::FormatArgument> arguments);

/// The same to an open file descriptor, without "DEBUG: ": the message in one write, the line end in
/// another. Write errors are ignored.
extern "C" KV_EXPORT void debugLogFd(std::int32_t level, int descriptor, const QString &format,
                                     std::span<const platform::FormatArgument> arguments);

namespace diag {

/// The two writes of debugLog(). The prefix is written before the message and the descriptions of its
/// arguments are made, so that a crash in one of them leaves a trace.
void writeDebugPrefix();
void writeDebugMessage(const QString &format, std::span<const platform::FormatArgument> arguments);

} // namespace diag

/// Converts the arguments and writes the message, as debugLog() above.
template<std::convertible_to<platform::FormatArgument>... Arguments>
void debugLog(std::int32_t level, const QString &format, const Arguments &...arguments)
{
    if (level >= 1)
        return;
    diag::writeDebugPrefix();
    diag::writeDebugMessage(
        format, std::span<const platform::FormatArgument>(platform::formatArguments(arguments...)));
}

/// Converts the arguments and writes the message, as debugLogFd() above.
template<std::convertible_to<platform::FormatArgument>... Arguments>
void debugLogFd(std::int32_t level, int descriptor, const QString &format, const Arguments &...arguments)
{
    if (level < 1)
        debugLogFd(level, descriptor, format,
                   std::span<const platform::FormatArgument>(platform::formatArguments(arguments...)));
}
