// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Drawing.h"
#include "PictureSpec.h"

namespace pictures {

/// Composes the picture: the printer at the right, the strip that leaves it to the left with the first label
/// in front, knives and scissors above the strip, and below it the symbols for settings that the strip alone
/// cannot show.
Drawing compose(const PictureSpec &spec, Theme theme);

} // namespace pictures
