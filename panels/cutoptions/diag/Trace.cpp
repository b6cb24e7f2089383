// SPDX-License-Identifier: Apache-2.0
#include "Trace.h"

#include <platform/Log.h>

namespace {

void logTagged(const char *tag, const platform::FormatArgument &object, const QString &format,
               std::span<const platform::FormatArgument> arguments)
{
    const QString line = object.isNull() ? platform::stringWithFormat("%s %@", tag, format)
                                         : platform::stringWithFormat("%s self(%@) %@", tag, object, format);
    platform::log(platform::stringWithFormat(line, arguments));
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): fixed names, see the header
void _PDEProlog(const platform::FormatArgument &object, const QString &format,
                std::span<const platform::FormatArgument> arguments)
{
    logTagged("BEGIN", object, format, arguments);
}

void _PDEEpilog(const platform::FormatArgument &object, const QString &format,
                std::span<const platform::FormatArgument> arguments)
{
    logTagged("END", object, format, arguments);
}

void _PDELog(const platform::FormatArgument &object, const QString &format,
             std::span<const platform::FormatArgument> arguments)
{
    logTagged("LOG", object, format, arguments);
}
// NOLINTEND(bugprone-reserved-identifier)
