// SPDX-License-Identifier: Apache-2.0
#include "FormatterRequest.h"

#include <QJsonArray>

#include <cmath>
#include <limits>

namespace textentry {

namespace {

/// What is wrong with a request. Never leaves this file.
struct Fault {
    QString message;
};

[[noreturn]] void refuse(const QString &member, const char *expected)
{
    throw Fault{QStringLiteral("\"%1\" must be %2").arg(member, QString::fromLatin1(expected))};
}

QString textOf(const QString &member, const QJsonValue &value)
{
    if (!value.isString())
        refuse(member, "a text");
    return value.toString();
}

/// JSON knows no integers, but numbers without a fraction.
template<typename Integer>
std::optional<Integer> integerOf(const QJsonValue &value)
{
    // 2^53: whole numbers up to here are what they were written as.
    constexpr double exact = 9007199254740992.0;
    using Limits = std::numeric_limits<Integer>;
    const double number = value.toDouble();
    if (!value.isDouble() || std::trunc(number) != number || std::abs(number) > exact ||
        number < static_cast<double>(Limits::min()) || number > static_cast<double>(Limits::max()))
        return std::nullopt;
    return static_cast<Integer>(number);
}

std::int32_t numberOf(const QString &member, const QJsonValue &value)
{
    const std::optional<std::int32_t> number = integerOf<std::int32_t>(value);
    if (!number)
        refuse(member, "a 32-bit integer");
    return *number;
}

PDETextRange rangeOf(const QString &member, const QJsonValue &value)
{
    const QJsonArray pair = value.toArray();
    const std::optional<qint64> location = integerOf<qint64>(pair.at(0));
    const std::optional<qint64> length = integerOf<qint64>(pair.at(1));
    if (pair.size() != 2 || !location || !length || *location < 0 || *length < 0)
        refuse(member, "a location and a length, both from 0 on");
    return {*location, *length};
}

QDateTime dateOf(const QString &member, const QJsonValue &value)
{
    QDateTime date = QDateTime::fromString(textOf(member, value), Qt::ISODateWithMs);
    if (!date.isValid())
        refuse(member, "an ISO 8601 date");
    return date;
}

/// Applies read(member, value) if the object has the member.
template<typename Read>
void ifPresent(const QJsonObject &object, const char *member, Read read)
{
    const QString name = QString::fromLatin1(member);
    const auto found = object.constFind(name);
    if (found != object.constEnd())
        read(name, found.value());
}

std::unique_ptr<PDEFormatter> baseFormatter(const QJsonObject &request)
{
    std::optional<QDateTime> date;
    std::optional<QVariantMap> locale;
    ifPresent(request, "calendarDate",
              [&](const QString &name, const QJsonValue &value) { date = dateOf(name, value); });
    ifPresent(request, "calendarLocale", [&](const QString &name, const QJsonValue &value) {
        if (!value.isObject())
            refuse(name, "an object");
        locale = value.toObject().toVariantMap();
    });
    return date || locale ? PDEFormatter::initWithCalendarDate(date, locale) : PDEFormatter::init();
}

void addInvalid(PDEFormatter &formatter, const QString &name, const QJsonValue &value)
{
    if (!value.isArray())
        refuse(name, "a list of texts");
    const QJsonArray texts = value.toArray();
    for (const auto &text : texts)
        formatter.addInvalidCharacter(textOf(name, text));
}

std::unique_ptr<PDEFormatter> formatterOf(const QJsonObject &request)
{
    std::unique_ptr<PDEFormatter> formatter = baseFormatter(request);
    struct Setting {
        const char *member;
        void (PDEFormatter::*set)(std::int32_t);
    };
    for (const Setting &setting :
         {Setting{"style", &PDEFormatter::setTextStyle}, Setting{"maxLength", &PDEFormatter::setMaxLength},
          Setting{"maxValue", &PDEFormatter::setMaxValue}, Setting{"minValue", &PDEFormatter::setMinValue}})
        ifPresent(request, setting.member, [&](const QString &name, const QJsonValue &value) {
            (formatter.get()->*setting.set)(numberOf(name, value));
        });
    ifPresent(request, "invalid",
              [&](const QString &name, const QJsonValue &value) { addInvalid(*formatter, name, value); });
    ifPresent(request, "formatString", [&](const QString &name, const QJsonValue &value) {
        formatter->setFormatString(textOf(name, value));
    });
    ifPresent(request, "notificationObject", [&](const QString &name, const QJsonValue &value) {
        formatter->setNotificationObject(textOf(name, value));
    });
    return formatter;
}

FormatterRequest::Edit editOf(const QJsonObject &object)
{
    const auto member = [&](const char *name) {
        QJsonValue value = object.value(QLatin1StringView(name));
        if (value.isUndefined())
            throw Fault{QStringLiteral("an edit lacks \"%1\"").arg(QLatin1StringView(name))};
        return value;
    };
    FormatterRequest::Edit edit;
    if (const QJsonValue partial = member("partial"); !partial.isNull())
        edit.partial = textOf(QStringLiteral("partial"), partial);
    if (const QJsonValue proposed = member("proposed"); !proposed.isNull())
        edit.proposed = rangeOf(QStringLiteral("proposed"), proposed);
    edit.original = textOf(QStringLiteral("original"), member("original"));
    edit.originalSelection = rangeOf(QStringLiteral("originalSelection"), member("originalSelection"));
    return edit;
}

FormatterRequest::Trial trialOf(const QJsonValue &value)
{
    if (!value.isObject())
        refuse(QStringLiteral("edits"), "a list of objects");
    const QJsonObject object = value.toObject();
    if (const QJsonValue format = object.value(QLatin1StringView("format")); !format.isUndefined()) {
        const std::optional<qint64> number = integerOf<qint64>(format);
        if (!number && !format.isString())
            refuse(QStringLiteral("format"), "an integer or a text");
        return FormatterRequest::Format{number ? QVariant(*number) : QVariant(format.toString())};
    }
    if (const QJsonValue string = object.value(QLatin1StringView("objectValue")); !string.isUndefined())
        return FormatterRequest::ObjectValue{textOf(QStringLiteral("objectValue"), string)};
    return editOf(object);
}

} // namespace

std::variant<FormatterRequest, QString> FormatterRequest::read(const QJsonObject &request)
{
    try {
        FormatterRequest read{formatterOf(request), {}};
        const QJsonValue edits = request.value(QLatin1StringView("edits"));
        if (!edits.isArray())
            refuse(QStringLiteral("edits"), "a list");
        const QJsonArray trials = edits.toArray();
        for (const auto &value : trials)
            read.trials.push_back(trialOf(value));
        return read;
    } catch (const Fault &fault) {
        return fault.message;
    }
}

} // namespace textentry
