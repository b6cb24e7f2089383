// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Image.h"

#include <QIcon>

namespace platform {
inline namespace images {

/// Returns an icon that draws the picture, always in the variant for the application's theme. Returns a null
/// icon if image is null.
QIcon iconFromImage(std::shared_ptr<const Image> image);

} // namespace images
} // namespace platform
