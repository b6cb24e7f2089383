// SPDX-License-Identifier: Apache-2.0
#include "DebugLog.h"

#include "DescriptorOutput.h"

#include <unistd.h>

namespace diag {

void writeDebugPrefix()
{
    writeFully(STDERR_FILENO, "DEBUG: ");
}

void writeDebugMessage(const QString &format, std::span<const platform::FormatArgument> arguments)
{
    writeFully(STDERR_FILENO, platform::stringWithFormat(format, arguments).toUtf8() + '\n');
}

} // namespace diag

void debugLog(std::int32_t level, const QString &format, std::span<const platform::FormatArgument> arguments)
{
    if (level >= 1)
        return;
    diag::writeDebugPrefix();
    diag::writeDebugMessage(format, arguments);
}

void debugLogFd(std::int32_t level, int descriptor, const QString &format,
                std::span<const platform::FormatArgument> arguments)
{
    if (level >= 1)
        return;
    diag::writeFully(descriptor, platform::stringWithFormat(format, arguments).toUtf8());
    diag::writeFully(descriptor, "\n");
}
