// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

namespace host {
inline namespace printer {

/// Why a PPD file could not be opened.
enum class PpdErrorKind {
    Missing,    ///< the file does not exist
    NotAFile,   ///< the path is a folder, a pipe or a device
    Unreadable, ///< missing permission, or an I/O error
    TooLarge,   ///< more bytes or statements than allowed
    Truncated,  ///< ends inside a value, or cannot be decompressed completely
    NotAPpd,    ///< libcups cannot parse the file, or the file is empty
};
using PpdError = Failure<PpdErrorKind>;

} // namespace printer
} // namespace host
