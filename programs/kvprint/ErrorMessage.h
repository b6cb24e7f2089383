// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace programs {
inline namespace kvprint {

/// The reason why a value is not valid; absent if it is.
using ErrorMessage = std::optional<QString>;

} // namespace kvprint
} // namespace programs
