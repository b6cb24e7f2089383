// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"
#include "DocumentKind.h"

#include <QByteArray>

class QIODevice;

namespace host {
inline namespace documents {

/// Writes a PDF to the device whose only page is the image, a PNG or JPEG, in its natural size: the size that
/// follows from the resolution that the image states. No pixel is lost; transparent pixels become white.
/// The program kvprint-imagepdf reads it. Returns an error if the image is damaged or too large, or if the
/// device cannot hold the PDF. The device is not owned; what it contains after an error is undefined.
Result<void, DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf);

} // namespace documents
} // namespace host
