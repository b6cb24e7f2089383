// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <platform/TemporaryFile.h>

#include <memory>

namespace host {
inline namespace documents {

/// The most bytes taken from standard input: 1 GiB, far more than any document of labels has, and a bound
/// for what a program that never stops writing can fill.
inline constexpr qint64 maxInput = 1024LL * 1024 * 1024;

/// An empty file among the system's temporary ones that only this user can read, gone with the object.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> makeTemporaryFile();
/// Why the temporary file could not be written.
DocumentErrorReason notStored(const platform::TemporaryFile &file);

/// Reads standard input to its end into a temporary file, and waits while the other program writes. The limit
/// is in bytes; longer input is an error and leaves no file.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason>
readStandardInput(qint64 limit = maxInput);

} // namespace documents
} // namespace host
