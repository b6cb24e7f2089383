// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <cstdint>

namespace platform {
inline namespace text {

/// Returns the integer at the beginning of a text, as in an entry of a number field: leading white space is
/// skipped, a sign may follow, then digits up to the first other character. Returns 0 if there is no number,
/// and the nearest 32-bit value for a number outside the 32-bit range.
std::int32_t integerValue(QStringView text);

} // namespace text
} // namespace platform
