// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace platform {
inline namespace system {

/// Writes one record to the system log, which on this platform is standard error: the text and a
/// line end, in one write.
void log(const QString &text);

/// Sends the records elsewhere; an empty function brings standard error back.
void setLogSink(std::function<void(const QString &)> sink);

} // namespace system
} // namespace platform
