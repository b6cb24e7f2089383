// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"
#include "DocumentKind.h"

#include <QByteArray>

class QIODevice;

namespace host {
inline namespace documents {

/// The max number of pixels of an image: several times what a label printer prints on a metre of tape. The
/// pixels of a PNG, and of a JPEG that cannot be embedded unchanged, are decoded first; for these, the max is
/// half as many. More pixels would need a gigabyte of memory.
inline constexpr qint64 maxImagePixels = 64LL * 1024 * 1024;
/// The resolution of images that state none, in dots per inch.
inline constexpr double defaultImageResolution = 96.0;

/// Writes a PDF to the device whose only page is the image, a PNG or JPEG, in its natural size: the size that
/// follows from the resolution that the image states. No pixel is lost; transparent pixels become white.
/// Returns an error if the image is damaged or too large, or if the device cannot hold the PDF. The device is
/// not owned; what it contains after an error is undefined.
Result<void, DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf);

} // namespace documents
} // namespace host
