// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace dialog {
inline namespace job {

/// The server's time of day, "HH:MM" in UTC, at which it is next this time of day for the user. The server
/// starts a job when that time comes next, today or tomorrow; over the night the clocks may change.
QString holdFromLocalTime(const QTime &local, const QDateTime &now);

/// The user's time of day when it is next that time for the server; nothing for a text that is no time.
/// Understands "HH:MM" and "HH:MM:SS".
std::optional<QTime> localTimeFromHold(const QString &hold, const QDateTime &now);

} // namespace job
} // namespace dialog
