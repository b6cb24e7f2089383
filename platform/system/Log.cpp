// SPDX-License-Identifier: Apache-2.0
#include "Log.h"

#include <cstdio>

namespace platform {
inline namespace system {

namespace {

std::function<void(const QString &)> &sink()
{
    static std::function<void(const QString &)> current;
    return current;
}

} // namespace

void log(const QString &text)
{
    if (sink()) {
        sink()(text);
        return;
    }
    const QByteArray line = text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

void setLogSink(std::function<void(const QString &)> replacement)
{
    sink() = std::move(replacement);
}

} // namespace system
} // namespace platform
