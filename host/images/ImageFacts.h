// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace host {
inline namespace images {

/// Properties of a PNG or JPEG that Qt's image readers do not report.
struct ImageFacts {
    /// The file contains its end marker. Image readers fill the missing part of a truncated JPEG with gray.
    bool complete = false;
    /// Dots per metre, horizontally and vertically; absent if the file states no resolution.
    std::optional<QSizeF> resolution;
    /// The number of colours of a JPEG that a PDF can contain unchanged: 1 for gray, 3 for colour. Absent
    /// for all other images.
    std::optional<int> pdfColors;
};

/// Reads the properties of a PNG. Damaged data yields the defaults for what cannot be read.
ImageFacts pngFacts(const QByteArray &png);
/// Reads the properties of a JPEG. Damaged data yields the defaults for what cannot be read.
ImageFacts jpegFacts(const QByteArray &jpeg);

} // namespace images
} // namespace host
