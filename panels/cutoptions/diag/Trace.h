// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/FormatString.h>

#include <QString>

#include <span>

/// Trace lines on the system log: a method's entry ("BEGIN"), its end ("END") and what happens between
/// ("LOG"), as in
///
///     _PDEProlog(this, "value %d", 3);   // BEGIN self(<OptionPDE13_v400_: 0x55d0c0ffee00>) value 3
///     _PDELog(nullptr, "no panel yet");  // LOG no panel yet
///
/// The object is the one at work, or null. It is described in the line's format before the arguments
/// are filled in, so a "%" in its description is a directive like those of the caller's format.
/// Directives are those of platform::stringWithFormat(); each function comes as the exported one and as
/// a template in the natural form of a call, as debugLog() does.
///
/// The names are those that scripts and debugger macros of this plug-in have always called; they are
/// fixed, though C++ keeps names of that form for itself.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" KV_EXPORT void _PDEProlog(const platform::FormatArgument &object, const QString &format,
                                     std::span<const platform::FormatArgument> arguments);
extern "C" KV_EXPORT void _PDEEpilog(const platform::FormatArgument &object, const QString &format,
                                     std::span<const platform::FormatArgument> arguments);
extern "C" KV_EXPORT void _PDELog(const platform::FormatArgument &object, const QString &format,
                                  std::span<const platform::FormatArgument> arguments);

/// Converts the arguments and writes the message, as _PDEProlog() above.
template<std::convertible_to<platform::FormatArgument>... Arguments>
void _PDEProlog(const platform::FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    _PDEProlog(object, format,
               std::span<const platform::FormatArgument>(platform::formatArguments(arguments...)));
}

/// Converts the arguments and writes the message, as _PDEEpilog() above.
template<std::convertible_to<platform::FormatArgument>... Arguments>
void _PDEEpilog(const platform::FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    _PDEEpilog(object, format,
               std::span<const platform::FormatArgument>(platform::formatArguments(arguments...)));
}

/// Converts the arguments and writes the message, as _PDELog() above.
template<std::convertible_to<platform::FormatArgument>... Arguments>
void _PDELog(const platform::FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    _PDELog(object, format,
            std::span<const platform::FormatArgument>(platform::formatArguments(arguments...)));
}
// NOLINTEND(bugprone-reserved-identifier)
