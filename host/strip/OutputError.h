// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

namespace host {

enum class OutputFailure {
    NoFolder, ///< the folder is not there and cannot be made
    NotWritten,
};
using OutputError = Failure<OutputFailure>;

} // namespace host
