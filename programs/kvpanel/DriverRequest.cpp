// SPDX-License-Identifier: Apache-2.0
#include "DriverRequest.h"

#include <cmath>
#include <limits>

DriverRequest::DriverRequest(QJsonObject members, QString context)
    : m_members(std::move(members))
    , m_context(std::move(context))
{
}

bool DriverRequest::has(const char *name) const
{
    return m_members.contains(QLatin1String(name));
}

RequestError DriverRequest::illTyped(const char *name, const char *expected) const
{
    return RequestError(QStringLiteral("member \"%1%2\" must be %3")
                            .arg(m_context, QLatin1String(name), QLatin1String(expected)));
}

QJsonValue DriverRequest::required(const char *name) const
{
    if (!has(name))
        throw RequestError(QStringLiteral("member \"%1%2\" is missing").arg(m_context, QLatin1String(name)));
    return m_members.value(QLatin1String(name));
}

QString DriverRequest::text(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isString())
        throw illTyped(name, "a text");
    return value.toString();
}

QString DriverRequest::text(const char *name, const QString &whenMissing) const
{
    return has(name) ? text(name) : whenMissing;
}

QString DriverRequest::path(const char *name) const
{
    // For the system the path would end there: it would open another file than the one that is named.
    QString value = text(name);
    if (value.contains(QChar::Null))
        throw illTyped(name, "a path without U+0000");
    return value;
}

std::optional<QString> DriverRequest::textOrNull(const char *name) const
{
    const QJsonValue value = required(name);
    if (value.isNull())
        return std::nullopt;
    if (!value.isString())
        throw illTyped(name, "a text or null");
    return value.toString();
}

bool DriverRequest::flag(const char *name, bool whenMissing) const
{
    if (!has(name))
        return whenMissing;
    const QJsonValue value = required(name);
    if (!value.isBool())
        throw illTyped(name, "true or false");
    return value.toBool();
}

double DriverRequest::number(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        throw illTyped(name, "a number");
    return value.toDouble();
}

std::optional<double> DriverRequest::numberOrNull(const char *name) const
{
    if (required(name).isNull())
        return std::nullopt;
    return number(name);
}

std::optional<std::int32_t> DriverRequest::toInteger(const QJsonValue &value)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(number >= std::numeric_limits<std::int32_t>::min() &&
          number <= std::numeric_limits<std::int32_t>::max()) ||
        number != std::floor(number))
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

std::int32_t DriverRequest::integer(const char *name) const
{
    const std::optional<std::int32_t> value = toInteger(required(name));
    if (!value)
        throw illTyped(name, "a 32-bit integer");
    return *value;
}

std::int32_t DriverRequest::integer(const char *name, std::int32_t whenMissing) const
{
    return has(name) ? integer(name) : whenMissing;
}

QJsonArray DriverRequest::list(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isArray())
        throw illTyped(name, "a list");
    return value.toArray();
}

std::optional<DriverRequest> DriverRequest::objectOrNull(const char *name) const
{
    const QJsonValue value = required(name);
    if (value.isNull())
        return std::nullopt;
    if (!value.isObject())
        throw illTyped(name, "an object or null");
    return DriverRequest(value.toObject(), m_context + QLatin1String(name) + u'.');
}
