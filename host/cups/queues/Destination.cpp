// SPDX-License-Identifier: Apache-2.0
#include "Destination.h"

#include <QCborArray>
#include <QUrl>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

// The fields in the cache, one row each; toCbor() and fromCbor() use the same rows.
constexpr std::pair<const char *, QString Destination::*> textFields[] = {
    {"queue", &Destination::queue},         {"description", &Destination::description},
    {"location", &Destination::location},   {"makeAndModel", &Destination::makeAndModel},
    {"deviceUri", &Destination::deviceUri}, {"stateMessage", &Destination::stateMessage},
};
constexpr std::pair<const char *, bool Destination::*> flagFields[] = {
    {"isClass", &Destination::isClass},
    {"isDiscovered", &Destination::isDiscovered},
    {"isDefault", &Destination::isDefault},
    {"acceptsJobs", &Destination::acceptsJobs},
};
constexpr std::pair<const char *, QStringList Destination::*> listFields[] = {
    {"members", &Destination::members},
    {"stateReasons", &Destination::stateReasons},
};
constexpr std::pair<const char *, std::vector<NamedValue> Destination::*> optionFields[] = {
    {"queueOptions", &Destination::queueOptions},
    {"userOptions", &Destination::userOptions},
};

/// Returns 0 for other types: QCborValue::toInteger() converts doubles of any size.
qint64 integer(const QCborValue &value)
{
    return value.isInteger() ? value.toInteger() : 0;
}

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

/// Returns the service name in a URI such as "ipps://Label%20printer._ipps._tcp.local/"; empty for other
/// URIs.
QString announcedName(const QString &deviceUri)
{
    const QString scheme = QStringLiteral("://");
    const qsizetype start = deviceUri.indexOf(scheme) + scheme.size();
    const QString host = deviceUri.mid(start, deviceUri.indexOf(u'/', start) - start);
    const qsizetype transport = host.lastIndexOf(QStringLiteral("._tcp"));
    const qsizetype service = transport < 0 ? -1 : host.left(transport).lastIndexOf(QStringLiteral("._"));
    return service < 0 ? QString() : QUrl::fromPercentEncoding(host.left(service).toUtf8());
}

} // namespace

const QByteArray *findValue(const std::vector<NamedValue> &values, const QByteArray &name)
{
    const auto found =
        std::find_if(values.begin(), values.end(), [&](const NamedValue &each) { return each.name == name; });
    return found == values.end() ? nullptr : &found->value;
}

QString Destination::name() const
{
    return instance ? queue + u'/' + *instance : queue;
}

QCborMap Destination::toCbor() const
{
    QCborMap map;
    for (const auto &[name, field] : textFields)
        map.insert(key(name), this->*field);
    for (const auto &[name, field] : flagFields)
        map.insert(key(name), this->*field);
    for (const auto &[name, field] : listFields)
        map.insert(key(name), QCborArray::fromStringList(this->*field));
    for (const auto &[name, field] : optionFields) {
        QCborArray pairs;
        for (const NamedValue &option : this->*field)
            pairs.append(QCborArray{option.name, option.value});
        map.insert(key(name), pairs);
    }
    map.insert(QStringLiteral("state"), static_cast<int>(state));
    map.insert(QStringLiteral("configured"), configured);
    if (instance)
        map.insert(QStringLiteral("instance"), *instance);
    return map;
}

std::optional<Destination> Destination::fromCbor(const QCborMap &map)
{
    Destination destination;
    for (const auto &[name, field] : textFields)
        destination.*field = map.value(key(name)).toString();
    for (const auto &[name, field] : flagFields)
        destination.*field = map.value(key(name)).toBool();
    for (const auto &[name, field] : listFields) {
        for (const QCborValue value : map.value(key(name)).toArray())
            (destination.*field).append(value.toString());
    }
    for (const auto &[name, field] : optionFields) {
        for (const QCborValue pair : map.value(key(name)).toArray())
            (destination.*field)
                .push_back({pair.toArray().at(0).toByteArray(), pair.toArray().at(1).toByteArray()});
    }
    const qint64 state = integer(map.value(QStringLiteral("state")));
    if (state >= static_cast<int>(QueueState::Ready) && state <= static_cast<int>(QueueState::Paused))
        destination.state = static_cast<QueueState>(state);
    destination.configured = integer(map.value(QStringLiteral("configured")));
    const QCborValue instance = map.value(QStringLiteral("instance"));
    if (instance.isString())
        destination.instance = instance.toString();
    if (destination.queue.isEmpty())
        return std::nullopt;
    return destination;
}

bool isSamePrinter(const Destination &one, const Destination &other)
{
    if (one.queue == other.queue)
        return true;
    if (one.deviceUri.isEmpty() || other.deviceUri.isEmpty())
        return false;
    const QString name = announcedName(one.deviceUri);
    return one.deviceUri == other.deviceUri || (!name.isEmpty() && name == announcedName(other.deviceUri));
}

std::pair<QString, std::optional<QString>> splitDestinationName(const QString &name)
{
    const qsizetype slash = name.lastIndexOf(u'/');
    if (slash < 0)
        return {name, std::nullopt};
    return {name.left(slash), name.mid(slash + 1)};
}

} // namespace queues
} // namespace cups
} // namespace host
