// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

// PPDs and PDFs count in points of 1/72 inch, tape and people in millimetres.
inline constexpr double millimetresPerPoint = 25.4 / 72.0;
inline constexpr double pointsPerMillimetre = 72.0 / 25.4;

} // namespace host
