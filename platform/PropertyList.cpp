// SPDX-License-Identifier: Apache-2.0
#include "PropertyList.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace platform {

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

QVariantMap toMap(plist_t dictionary)
{
    QVariantMap map;
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(dictionary, &position);
    const TextPointer owned(static_cast<char *>(position));
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, position, &key, &value);
        const TextPointer ownedKey(key);
        if (!value)
            return map;
        map.insert(QString::fromUtf8(key), toVariant(value));
    }
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
    case PLIST_STRING: {
        char *text = nullptr;
        plist_get_string_val(node, &text);
        const TextPointer owned(text);
        return QString::fromUtf8(text);
    }
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

} // namespace

std::optional<QVariant> fromXmlPropertyList(const QByteArray &xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    const PlistPointer owned(node);
    if (!node)
        return std::nullopt;
    return toVariant(node);
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

} // namespace platform
