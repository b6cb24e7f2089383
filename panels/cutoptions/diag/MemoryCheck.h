// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <cstdint>

/// Hexadecimal dumps of memory, 16 bytes to a line, in lower case without blanks. A positive level, null
/// bytes and a count of 0 or below write nothing; write errors are ignored. The caller vouches for count
/// bytes being there.

/// Dumps to standard error: each line is "DEBUG:" and its digits, and no line is ever ended, so they run
/// together. When the last line is full, another, empty "DEBUG:" follows it. Tools that read these dumps
/// split them at "DEBUG:".
extern "C" KV_EXPORT void memoryCheck(std::int32_t level, const void *bytes, std::int32_t count);

/// Dumps to an open file descriptor: each line is its digits and a line end, and nothing follows a full
/// last line.
extern "C" KV_EXPORT void memoryCheckFd(std::int32_t level, int descriptor, const void *bytes,
                                        std::int32_t count);
