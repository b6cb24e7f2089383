// SPDX-License-Identifier: Apache-2.0
// Formats an unchecked format string with arguments of random kinds: their number, each one's kind and value,
// then the format in UTF-8.
#include "FuzzInput.h"

#include <platform/FormatString.h>

#include <bit>
#include <vector>

namespace {

platform::FormatArgument argumentFrom(FuzzInput &input)
{
    switch (input.byte() % 8) {
    case 0:
        return input.number<std::int32_t>();
    case 1:
        return input.number<std::uint64_t>();
    case 2:
        return std::bit_cast<double>(input.number<std::uint64_t>());
    case 3:
        return QString(input.utf16(input.byte() % 8));
    case 4:
        return input.bytes(input.byte() % 8).constData();
    case 5:
        return nullptr;
    case 6:
        return reinterpret_cast<const void *>(input.number<std::uintptr_t>());
    default:
        return static_cast<char>(input.byte());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    std::vector<platform::FormatArgument> arguments;
    for (int count = input.byte() % 6; count > 0; --count)
        arguments.push_back(argumentFrom(input));
    const QString format = QString::fromUtf8(input.bytes(size));

    // Two extents of 4096 at most and the 309 digits of the largest number, for each directive.
    const QString text = platform::stringWithFormat(format, arguments);
    if (text.size() > format.size() + (format.count(u'%') + 1) * 9000)
        qFatal("%lld characters came out of \"%s\"", static_cast<long long>(text.size()), qPrintable(format));

    QString escaped = format;
    escaped.replace(QStringLiteral("%"), QStringLiteral("%%"));
    if (platform::stringWithFormat(escaped, arguments) != format)
        qFatal("\"%s\" did not come back as it was", qPrintable(format));
    return 0;
}
