// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"
#include "DocumentKind.h"

#include <QByteArray>

#include <optional>

class QIODevice;

namespace host {
inline namespace documents {

/// The most pixels an image may have, 64 million, and half as many where they have to be decoded first, as
/// those of a PNG have: several times what a label printer puts on a metre of tape. More would take a
/// gigabyte while it is turned into a page.
inline constexpr qint64 maxImagePixels = 64LL * 1024 * 1024;
/// The resolution of images that tell none, in dots an inch.
inline constexpr double defaultImageResolution = 96.0;

/// Writes a PDF whose one page is the PNG or JPEG in its natural size, pixels by the file's own resolution,
/// without losing a pixel; what is transparent becomes white.
std::optional<DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf);

} // namespace documents
} // namespace host
