// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Renderer.h"

namespace pictures {

/// All pictures on one sheet, for looking at them side by side. Each has a row with its name and, on
/// the window colours of the light and of the dark theme, itself at one and at two pixels per point,
/// as large as the list of the panel's pop-up shows it, and as small as the closed pop-up does.
std::variant<QImage, Problems> contactSheet();

} // namespace pictures
