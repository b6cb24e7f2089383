// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

namespace test_support {

/// Returns a named hold period ("night", "third-shift") that begins hours from now: within its own period the
/// server does not hold a job.
inline QString holdPeriodHoursAway(const QDateTime &now = QDateTime::currentDateTime())
{
    const int hour = now.toLocalTime().time().hour();
    if (hour < 8)
        return QStringLiteral("second-shift"); // 16:00 to 24:00
    if (hour < 18)
        return QStringLiteral("third-shift"); // 0:00 to 8:00
    return QStringLiteral("day-time");        // 6:00 to 18:00
}

/// Returns the time of day some hours from now, in UTC as servers expect it.
inline QString holdTimeHoursAway(int hours, const QString &format)
{
    return QDateTime::currentDateTimeUtc().addSecs(qint64{hours} * 60 * 60).toString(format);
}

} // namespace test_support
