// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace programs {
inline namespace kvprint {

/// Nothing when a value was good, otherwise what is wrong with it.
using ErrorMessage = std::optional<QString>;

} // namespace kvprint
} // namespace programs
