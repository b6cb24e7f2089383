// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <platform/TemporaryFile.h>

#include <memory>

namespace host {
inline namespace documents {

/// The max number of bytes that are read from standard input: 1 GiB, far more than a document of labels has.
/// Limits the disk space that a program that writes endlessly can fill.
inline constexpr qint64 maxInput = 1024LL * 1024 * 1024;

/// Creates an empty file in the system's folder for temporary files, which only this user can read and which
/// is removed with the object.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> makeTemporaryFile();
/// Returns why the temporary file could not be written.
DocumentErrorReason notStored(const platform::TemporaryFile &file);

/// Reads standard input to its end into a temporary file, and waits while the other program writes. The limit
/// is in bytes; longer input is an error and leaves no file.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason>
readStandardInput(qint64 limit = maxInput);

} // namespace documents
} // namespace host
