// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Drawing.h"
#include "PictureSpec.h"

namespace pictures {

/// Puts the picture together: the printer at the right, the strip coming out of it to the left with
/// the first label in front, knives and scissors above it, and below it the signs for what cannot be
/// seen on the strip alone.
Drawing compose(const PictureSpec &spec, Theme theme);

} // namespace pictures
