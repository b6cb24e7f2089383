// SPDX-License-Identifier: Apache-2.0
#include "PropertyList.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace platform {
inline namespace text {

namespace {

struct PlistRelease {
    void operator()(void *node) const { plist_free(node); }
};
using PlistPointer = std::unique_ptr<void, PlistRelease>;

struct MemoryRelease {
    void operator()(char *memory) const { std::free(memory); }
};
using TextPointer = std::unique_ptr<char, MemoryRelease>;

QVariant toVariant(plist_t node);

/// Calls the action for each entry of the dictionary.
template<typename Action>
void forEachEntry(plist_t dictionary, const Action &action)
{
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(dictionary, &position);
    const TextPointer owned(static_cast<char *>(position));
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, position, &key, &value);
        const TextPointer ownedKey(key);
        if (!value)
            return;
        action(QString::fromUtf8(key), value);
    }
}

QString toText(plist_t string)
{
    // plist_get_string_val() is not used: it terminates the program if the string contains U+0000.
    std::uint64_t length = 0;
    const char *const text = plist_get_string_ptr(string, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

QVariantMap toMap(plist_t dictionary)
{
    QVariantMap map;
    forEachEntry(dictionary,
                 [&map](const QString &key, plist_t value) { map.insert(key, toVariant(value)); });
    return map;
}

QVariantList toList(plist_t array)
{
    QVariantList list;
    for (std::uint32_t index = 0; index < plist_array_get_size(array); ++index)
        list.append(toVariant(plist_array_get_item(array, index)));
    return list;
}

QVariant toVariant(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return toMap(node);
    case PLIST_ARRAY:
        return toList(node);
    case PLIST_STRING:
        return toText(node);
    case PLIST_DATA: {
        char *bytes = nullptr;
        std::uint64_t length = 0;
        plist_get_data_val(node, &bytes, &length);
        const TextPointer owned(bytes);
        return QByteArray(bytes, static_cast<qsizetype>(length));
    }
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<qlonglong>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    default:
        return {};
    }
}

plist_t toNode(const QVariant &value)
{
    switch (value.metaType().id()) {
    case QMetaType::QVariantMap: {
        const plist_t dictionary = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            plist_dict_set_item(dictionary, entry.key().toUtf8().constData(), toNode(entry.value()));
        return dictionary;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        const plist_t array = plist_new_array();
        for (const QVariant &item : value.toList())
            plist_array_append_item(array, toNode(item));
        return array;
    }
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<std::uint64_t>(bytes.size()));
    }
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return plist_new_uint(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

PlistPointer parse(const QByteArray &xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    return PlistPointer(node);
}

} // namespace

std::optional<QVariant> fromXmlPropertyList(const QByteArray &xml)
{
    const PlistPointer list = parse(xml);
    if (!list)
        return std::nullopt;
    return toVariant(list.get());
}

std::optional<QString> stringInXmlPropertyList(const QByteArray &xml, const QString &key)
{
    const PlistPointer list = parse(xml);
    if (!list || plist_get_node_type(list.get()) != PLIST_DICT)
        return std::nullopt;
    std::optional<QString> found;
    forEachEntry(list.get(), [&](const QString &name, plist_t value) {
        if (name == key)
            found = plist_get_node_type(value) == PLIST_STRING ? std::optional(toText(value)) : std::nullopt;
    });
    return found;
}

QByteArray toXmlPropertyList(const QVariant &value)
{
    const PlistPointer node(toNode(value));
    char *xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node.get(), &xml, &length);
    const TextPointer owned(xml);
    return QByteArray(xml, static_cast<qsizetype>(length));
}

} // namespace text
} // namespace platform
