// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

namespace platform {
inline namespace controls {

/// The window that takes the keyboard. The height is in points, title bar included; nothing when no
/// window of the application takes the keyboard.
std::optional<double> keyWindowFrameHeight();

/// Replaces the question; an empty function brings back the default, Qt's active window. A host
/// without windows on a screen answers for the window it stands for.
void setKeyWindowQuery(std::function<std::optional<double>()> query);

} // namespace controls
} // namespace platform
