// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace host {
inline namespace documents {

/// What a PNG or JPEG says beside its pixels, which image readers keep to themselves.
struct ImageFacts {
    /// The file goes on to its own end mark. Readers fill what is missing of a JPEG with grey.
    bool complete = false;
    /// Dots per metre across and down; nothing when the file does not tell.
    std::optional<QSizeF> resolution;
    /// Of a JPEG whose data can stand in a PDF as they are: 1 for grey, 3 for colour. Otherwise 0.
    int pdfColors = 0;
};

ImageFacts pngFacts(const QByteArray &png);
ImageFacts jpegFacts(const QByteArray &jpeg);

} // namespace documents
} // namespace host
