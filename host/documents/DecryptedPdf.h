// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <platform/TemporaryFile.h>

#include <memory>

namespace host {
inline namespace documents {

/// Writes the encrypted PDF at the path without its encryption, by the program kvprint-decryptpdf, to which
/// the password is sent through a pipe. Returns a temporary file that only this user can read, or the error
/// WrongPassword.
Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> decryptPdf(const QString &path,
                                                                                 const QString &password);

} // namespace documents
} // namespace host
