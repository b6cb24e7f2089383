// SPDX-License-Identifier: Apache-2.0
// A paper's ticket: the key in the first line, the property list behind it. A string that is found is the one
// of the list as a whole.
#include <platform/PropertyList.h>

#include <cstdint>

namespace {

/// Reading a whole list needs stack space for each level.
bool isFlat(const QByteArray &xml)
{
    constexpr qsizetype maxLevels = 100;
    return xml.count("<dict") + xml.count("<array") <= maxLevels;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype end = bytes.indexOf('\n');
    if (end < 0)
        return 0;
    const QByteArray xml = bytes.mid(end + 1);
    const QString key = QString::fromUtf8(bytes.left(end));
    const std::optional<QString> found = platform::stringInXmlPropertyList(xml, key);
    if (!isFlat(xml))
        return 0;
    const std::optional<QVariant> whole = platform::fromXmlPropertyList(xml);
    const QVariant value = whole ? whole->toMap().value(key) : QVariant();
    const bool isString = value.metaType().id() == QMetaType::QString;
    if (found.has_value() != isString || (found && *found != value.toString()))
        qFatal("\"%s\" is another string in the whole list", qPrintable(key));
    return 0;
}
