// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace platform {
inline namespace system {

/// Writes one record to the system log, which is standard error on this platform: the text and a newline, in
/// one write.
void log(const QString &text);

/// Sends the records to the sink instead; an empty function restores standard error.
void setLogSink(std::function<void(const QString &)> sink);

} // namespace system
} // namespace platform
