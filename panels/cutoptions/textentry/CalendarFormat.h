// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace textentry {

/// The date as the calendar format describes it; nothing stands for "%Y-%m-%d %H:%M:%S %z".
///
///     %Y year, four digits        %y year, two digits          %m month, 01-12
///     %B month's name             %b month's short name        %d day, 01-31
///     %e day without a zero       %j day of the year, 001-366  %A weekday's name
///     %a weekday's short name     %w weekday, 0 for Sunday     %H hour, 00-23
///     %I hour, 01-12              %p AM or PM                  %M minute
///     %S second                   %F milliseconds, 000-999     %Z time zone's name
///     %z offset, "+0200"          %x date of the locale        %X time of the locale
///     %c date and time of the locale                           %% a percent sign
///
/// Any other directive stands in the result as it is written.
///
/// The locale is a dictionary with some or all of "NSMonthNameArray", "NSShortMonthNameArray",
/// "NSWeekDayNameArray" and "NSShortWeekDayNameArray" (from Sunday on), "NSAMPMDesignation" (two texts),
/// and the calendar formats "NSDateFormatString", "NSTimeFormatString" and "NSTimeDateFormatString" behind
/// %x, %X and %c. What it lacks, or holds in another type or in lists too short, is English: month/day/year
/// for %x, hours to seconds for %X, both for %c.
QString descriptionWithCalendarFormat(const QDateTime &date, const std::optional<QString> &format,
                                      const std::optional<QVariantMap> &locale);

} // namespace textentry
