// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

namespace host {

enum class PpdFailure {
    Missing,    ///< there is no such file
    NotAFile,   ///< a folder, a pipe or a device
    Unreadable, ///< no permission, or the medium fails
    TooLarge,   ///< more bytes or statements than any printer's description
    Truncated,  ///< ends in the middle of a value, or cannot be unpacked to its end
    NotAPpd,    ///< libcups does not understand it
};
using PpdError = Failure<PpdFailure>;

} // namespace host
