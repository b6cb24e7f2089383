// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {
inline namespace base {

/// PPDs and PDFs measure in points of 1/72 inch, tapes and the user interface in millimetres.
inline constexpr double millimetresPerPoint = 25.4 / 72.0;
inline constexpr double pointsPerMillimetre = 72.0 / 25.4;

} // namespace base
} // namespace host
