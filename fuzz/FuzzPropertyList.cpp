// SPDX-License-Identifier: Apache-2.0
// A paper's ticket: the key in the first line, the property list behind it.
#include <platform/PropertyList.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype end = bytes.indexOf('\n');
    if (end >= 0)
        platform::stringInXmlPropertyList(bytes.mid(end + 1), QString::fromUtf8(bytes.left(end)));
    return 0;
}
