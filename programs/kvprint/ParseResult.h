// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

namespace programs {
inline namespace kvprint {

/// The result of parsing the value of an option: its error is the message for the user, which says why the
/// value is not valid.
using ParseResult = host::Result<void, QString>;

} // namespace kvprint
} // namespace programs
