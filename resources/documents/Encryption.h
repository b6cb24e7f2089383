// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace documents {

/// A PDF file of one label that opens only with the password.
///
/// The encryption is the oldest that PDF has, RC4 with 40 bits: it keeps no secret, but every reader
/// knows it and asks for the password.
QByteArray encryptedLabel(const QByteArray &password);

} // namespace documents
