// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace dialog {
inline namespace job {

/// Returns the next occurrence of a local time of day as a UTC time, "HH:MM" or "HH:MM:SS", as the server
/// expects it. The server starts a job at the next occurrence of that time, today or tomorrow. The offset
/// from UTC is that of the next occurrence: daylight saving time may begin or end before it.
QString holdFromLocalTime(const QTime &local, const QDateTime &now);

/// Returns the local time of day at the next occurrence of a UTC time, "HH:MM" or "HH:MM:SS"; absent if the
/// text is not a time.
std::optional<QTime> localTimeFromHold(const QString &hold, const QDateTime &now);

} // namespace job
} // namespace dialog
