// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace host {
inline namespace documents {

/// An SVG that has been checked and rewritten for the converter: without a document type, with entities
/// expanded, and with names without prefixes, because SVGs that are copied out of other documents lack the
/// declarations of their prefixes.
struct SvgSource {
    /// The max number of nested elements, and of all elements: far more than drawing programs write,
    /// and few enough for the memory of the converter.
    static constexpr int maxLevels = 256;
    static constexpr int maxElements = 200'000;
    /// The max number of pixels of all pictures that are embedded in the SVG.
    static constexpr qint64 maxPicturePixels = 16LL * 1024 * 1024;

    /// The SVG as the converter reads it, in UTF-8.
    QByteArray content;
    /// The natural size in px, at 96 px per inch; absent if the SVG states none. Not checked.
    std::optional<QSizeF> size;

    /// Checks and rewrites an SVG. Returns an error if it is not an SVG, not well-formed or too large, and if
    /// it refers to other files, which are never loaded: it would be printed incompletely.
    static Result<SvgSource, DocumentErrorReason> read(const QByteArray &svg);
    /// The error for an SVG with more parts than can be drawn.
    static DocumentErrorReason tooManyParts();
};

} // namespace documents
} // namespace host
