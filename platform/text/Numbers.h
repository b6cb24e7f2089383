// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <cstdint>

namespace platform {
inline namespace text {

/// The integer that a text begins with, as a person's entry in a number field is read: leading
/// blanks are passed over, a sign may follow, then the digits up to the first other character.
/// 0 when there is no number; a number beyond 32 bits gives the nearest 32-bit value.
std::int32_t integerValue(QStringView text);

} // namespace text
} // namespace platform
