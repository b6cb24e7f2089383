// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

namespace host {
inline namespace strip {

/// Why output files could not be written.
enum class OutputErrorKind {
    NoFolder,   ///< the folder does not exist and cannot be created, or is not a folder
    NotWritten, ///< a file cannot be written or put in place
};
using OutputError = Failure<OutputErrorKind>;

} // namespace strip
} // namespace host
