// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Renderer.h"

namespace pictures {

/// Draws all pictures on one sheet for comparison. Each picture has a row with its name and, on the window
/// colours of the light and of the dark theme, the picture at one and at two pixels per point, in the size of
/// the pop-up list of the panel and in the size of the closed pop-up button. Returns the errors if a picture
/// cannot be rendered.
std::variant<QImage, Errors> contactSheet();

} // namespace pictures
