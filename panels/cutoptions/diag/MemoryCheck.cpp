// SPDX-License-Identifier: Apache-2.0
#include "MemoryCheck.h"

#include "DescriptorOutput.h"

#include <QByteArray>

#include <algorithm>

#include <unistd.h>

namespace {

constexpr std::int32_t bytesPerLine = 16;

/// Calls write with the digits of each line of the dump, the last one whatever its length, in order.
template<typename Write>
void forEachLine(std::int32_t level, const void *bytes, std::int32_t count, Write write)
{
    if (level >= 1 || !bytes)
        return;
    const auto *const first = static_cast<const char *>(bytes);
    for (std::int32_t done = 0; done < count;) {
        const std::int32_t length = std::min(bytesPerLine, count - done);
        write(QByteArray::fromRawData(first + done, length).toHex());
        done += length;
    }
}

} // namespace

void memoryCheck(std::int32_t level, const void *bytes, std::int32_t count)
{
    forEachLine(level, bytes, count,
                [](const QByteArray &digits) { diag::writeFully(STDERR_FILENO, "DEBUG:" + digits); });
    // What has been printed when a line was full is printed again, empty by then, after the last byte.
    if (level < 1 && bytes && count > 0 && count % bytesPerLine == 0)
        diag::writeFully(STDERR_FILENO, "DEBUG:");
}

void memoryCheckFd(std::int32_t level, int descriptor, const void *bytes, std::int32_t count)
{
    forEachLine(level, bytes, count,
                [descriptor](const QByteArray &digits) { diag::writeFully(descriptor, digits + '\n'); });
}
