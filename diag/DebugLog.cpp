// SPDX-License-Identifier: Apache-2.0
#include "DebugLog.h"

#include "DescriptorOutput.h"

#include <unistd.h>

void debugLog(std::int32_t level, const QString &format, std::span<const platform::FormatArgument> arguments)
{
    if (level >= 1)
        return;
    // The prefix goes out before the message is built, so that a crash while building it leaves a trace.
    diag::writeFully(STDERR_FILENO, "DEBUG: ");
    diag::writeFully(STDERR_FILENO, platform::stringWithFormat(format, arguments).toUtf8() + '\n');
}

void debugLogFd(std::int32_t level, int descriptor, const QString &format,
                std::span<const platform::FormatArgument> arguments)
{
    if (level >= 1)
        return;
    diag::writeFully(descriptor, platform::stringWithFormat(format, arguments).toUtf8());
    diag::writeFully(descriptor, "\n");
}
