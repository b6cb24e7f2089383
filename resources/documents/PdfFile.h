// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>

namespace documents {

/// Returns the PDF with these page sizes, in points and in the order of the pages, and without the date on
/// which it was made: the same labels are the same file.
QByteArray withPageSizes(const QByteArray &pdf, const QList<QSizeF> &sizes);

/// A PDF without pages.
QByteArray pdfWithoutPages();

/// A PDF of one label that opens only with the password. It is encrypted with AES (128 bits) and fixed
/// initial values, so that the file is the same every time.
QByteArray encryptedLabel(const QByteArray &password);

} // namespace documents
