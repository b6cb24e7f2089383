// SPDX-License-Identifier: Apache-2.0
#include "DescriptorOutput.h"

#include <platform/BrokenPipeBlocker.h>

#include <cerrno>

#include <unistd.h>

namespace diag {

void writeFully(int descriptor, QByteArrayView bytes)
{
    platform::BrokenPipeBlocker silence;
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written >= 0) {
            bytes = bytes.sliced(written);
            continue;
        }
        if (errno == EPIPE)
            silence.raised();
        if (errno != EINTR)
            return;
    }
}

} // namespace diag
