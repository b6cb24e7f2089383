// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

namespace platform {
inline namespace system {

/// The system beep, which says that an entry was refused.
void beep();

/// Tells the listener of every beep, besides sounding it; an empty function ends that. For hosts
/// that report what a person would hear.
void setBeepListener(std::function<void()> listener);

/// How often the system beep has sounded since the program started, for telling how many beeps an
/// operation made without taking the listener's place.
std::uint64_t beepCount();

} // namespace system
} // namespace platform
