// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

namespace platform {
inline namespace system {

/// Sounds the system beep, which signals that an entry was rejected.
void beep();

/// Calls the listener at every beep, in addition to the sound; an empty function removes the listener. For
/// hosts that report audible signals.
void setBeepListener(std::function<void()> listener);

/// Returns the number of system beeps since the program started. Callers use it to count the beeps of an
/// operation without replacing the listener.
std::uint64_t beepCount();

} // namespace system
} // namespace platform
