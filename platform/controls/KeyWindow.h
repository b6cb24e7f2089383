// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

namespace platform {
inline namespace controls {

/// Returns the height in points, including the title bar, of the window that has the keyboard focus;
/// std::nullopt if no window of the application has it.
std::optional<double> keyWindowFrameHeight();

/// Replaces the query; an empty function restores the default, Qt's active window. A host without windows on
/// a screen returns the height of the window that it represents.
void setKeyWindowQuery(std::function<std::optional<double>()> query);

} // namespace controls
} // namespace platform
