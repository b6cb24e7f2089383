// SPDX-License-Identifier: Apache-2.0
#include "FormatArgument.h"

#include "TextEncoding.h"

#include <QStringList>

#include <cxxabi.h>

#include <cstdlib>

namespace platform {
inline namespace text {

namespace {

QString orNull(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral("(null)"));
}

QString describeList(const QVariantList &list)
{
    QStringList items;
    for (const QVariant &item : list)
        items.append(orNull(description(item)));
    return QStringLiteral("(%1)").arg(items.join(QStringLiteral(", ")));
}

QString describeMap(const QVariantMap &map)
{
    QStringList entries;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        entries.append(QStringLiteral("%1 = %2").arg(entry.key(), orNull(description(entry.value()))));
    return QStringLiteral("{%1}").arg(entries.join(QStringLiteral("; ")));
}

std::optional<QString> textOf(const char *bytes)
{
    if (!bytes)
        return std::nullopt;
    const std::optional<QString> decoded = TextEncoding::system().decode(bytes);
    return decoded ? *decoded : QString::fromLatin1(bytes);
}

} // namespace

std::optional<QString> description(const QVariant &value)
{
    // QVariant::isNull() may return true for an empty text, which is not absent.
    if (!value.isValid() || value.metaType().id() == QMetaType::Nullptr)
        return std::nullopt;
    switch (value.metaType().id()) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return describeList(value.toList());
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return describeMap(value.toMap());
    default:
        break;
    }
    if (value.canConvert<QString>())
        return value.toString();
    return QStringLiteral("<%1>").arg(QString::fromLatin1(value.typeName()));
}

QString anonymousDescription(const std::type_info &type, const void *address)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> readable(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
    return QStringLiteral("<%1: 0x%2>")
        .arg(QString::fromLatin1(readable ? readable.get() : type.name()))
        .arg(reinterpret_cast<quintptr>(address), 0, 16);
}

FormatArgument::FormatArgument(const char *text)
    : m_value(Object{textOf(text), text})
{
}

bool FormatArgument::isNull() const
{
    const auto *const object = std::get_if<Object>(&m_value);
    return object && !object->description;
}

QString FormatArgument::description() const
{
    if (const auto *const integer = std::get_if<Integer>(&m_value))
        return QString::number(integer->value);
    if (const auto *const real = std::get_if<double>(&m_value))
        return QString::number(*real);
    return orNull(std::get<Object>(m_value).description);
}

} // namespace text
} // namespace platform
