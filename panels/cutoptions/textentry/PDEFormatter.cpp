// SPDX-License-Identifier: Apache-2.0
#include "PDEFormatter.h"

#include "CalendarFormat.h"
#include "TextStyle.h"

#include <platform/FormatString.h>
#include <platform/Numbers.h>

#include <algorithm>
#include <limits>

namespace {

const QString &objectDirective()
{
    static const QString directive = QStringLiteral("%@");
    return directive;
}

/// The value as an integer: a number's whole part, the number that a text begins with.
std::int32_t integerValue(const QVariant &object)
{
    switch (object.metaType().id()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return static_cast<std::int32_t>(object.toLongLong());
    case QMetaType::Float:
    case QMetaType::Double: {
        using Limits = std::numeric_limits<std::int32_t>;
        return static_cast<std::int32_t>(std::clamp<double>(object.toDouble(), Limits::min(), Limits::max()));
    }
    default:
        return platform::integerValue(platform::description(object).value_or(QString()));
    }
}

} // namespace

std::unique_ptr<PDEFormatter> PDEFormatter::init()
{
    return initWithFormatString(std::nullopt, textentry::AnyText);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithStyle(std::int32_t style)
{
    return initWithFormatString(std::nullopt, style);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithFormatString(const std::optional<QString> &format)
{
    return initWithFormatString(format, textentry::AnyText);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithFormatString(const std::optional<QString> &format,
                                                                 std::int32_t style)
{
    std::unique_ptr<PDEFormatter> formatter(new PDEFormatter);
    formatter->setFormatString(format);
    formatter->setTextStyle(style);
    return formatter;
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithCalendarDate(const std::optional<QDateTime> &date,
                                                                 const std::optional<QVariantMap> &locale)
{
    std::unique_ptr<PDEFormatter> formatter(new PDEFormatter);
    formatter->setTextStyle(textentry::CalendarDate);
    formatter->setCalendarDate(date);
    formatter->setCalendarLocale(locale);
    return formatter;
}

void PDEFormatter::setFormatString(const std::optional<QString> &format)
{
    mFormatString = format.value_or(objectDirective());
}

void PDEFormatter::setMaxValue(std::int32_t value)
{
    mMaxValue = value;
    setValidityMaxValue(true);
}

void PDEFormatter::setMinValue(std::int32_t value)
{
    mMinValue = value;
    setValidityMinValue(true);
}

void PDEFormatter::addInvalidCharacter(const std::optional<QString> &text)
{
    if (text)
        mInvalidCaracters.append(*text);
}

void PDEFormatter::removeInvalidCharacter(const QString &text)
{
    mInvalidCaracters.removeAll(text);
}

bool PDEFormatter::isInvalidCharacter(const QString &text) const
{
    return mInvalidCaracters.contains(text);
}

QString PDEFormatter::stringForObjectValue(const QVariant &object) const
{
    if (mTextStyle == textentry::CalendarDate && mDate)
        return textentry::descriptionWithCalendarFormat(*mDate, mFormatString, mLocale);
    const QString &format = mFormatString ? *mFormatString : objectDirective();
    if (!format.contains(objectDirective()) && textentry::isNumeric(mTextStyle))
        return platform::stringWithFormat(format, integerValue(object));
    return platform::stringWithFormat(format, object);
}

bool PDEFormatter::getObjectValue(std::optional<QString> *object, const std::optional<QString> &string,
                                  QString *) const
{
    if (object && string)
        *object = stringForObjectValue(*string);
    return true;
}
