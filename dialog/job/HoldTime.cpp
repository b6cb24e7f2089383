// SPDX-License-Identifier: Apache-2.0
#include "HoldTime.h"

#include <QTimeZone>

namespace dialog {
inline namespace job {

namespace {

/// Returns the next occurrence of the time of day after now, in the time zone of now.
QDateTime next(const QTime &time, const QDateTime &now)
{
    QDateTime moment = now;
    moment.setTime(time);
    if (moment <= now) {
        moment = now;
        moment.setDate(now.date().addDays(1));
        moment.setTime(time);
    }
    return moment;
}

} // namespace

QString holdFromLocalTime(const QTime &local, const QDateTime &now)
{
    const QTime utc = next(local, now).toUTC().time();
    return utc.toString(utc.second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
}

std::optional<QTime> localTimeFromHold(const QString &hold, const QDateTime &now)
{
    QTime time = QTime::fromString(hold, QStringLiteral("H:m"));
    if (!time.isValid())
        time = QTime::fromString(hold, QStringLiteral("H:m:s"));
    if (!time.isValid())
        return std::nullopt;
    return next(time, now.toUTC()).toTimeZone(now.timeZone()).time();
}

} // namespace job
} // namespace dialog
