// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Image.h"

#include <QIcon>

namespace platform {
inline namespace images {

/// An icon that draws the picture, always in the variant that suits the application's theme. A null icon for
/// no picture.
QIcon iconFromImage(std::shared_ptr<const Image> image);

} // namespace images
} // namespace platform
