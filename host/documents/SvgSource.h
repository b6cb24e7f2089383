// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QByteArray>
#include <QRectF>

#include <optional>

namespace host {
inline namespace documents {

/// An SVG after it has been looked through, written anew so that it can be drawn without reading anything
/// else and in its right size: without a document type, with lengths in px at 96 an inch (the drawing code
/// takes a millimetre for a ninetieth of an inch's) and with references in their older spelling.
struct SvgSource {
    /// Elements inside each other, and elements at all, that are taken: far more than drawing programs
    /// write, and few enough to be drawn.
    static constexpr int maxLevels = 256;
    static constexpr int maxElements = 500'000;
    /// Pixels of the pictures that stand inside the SVG, all together; a larger one would be left out
    /// without a word when it is drawn.
    static constexpr qint64 maxPicturePixels = 16LL * 1024 * 1024;

    QByteArray content;
    /// In px: what width and height say, completed from the view box; nothing when neither tells.
    std::optional<QSizeF> size;
    std::optional<QRectF> viewBox;
    /// Drawn larger or smaller, the drawing keeps its shape.
    bool keepsShape = true;

    /// Fails for what is no SVG, not well-formed or too large, and for an SVG that refers to other files.
    static Result<SvgSource, DocumentErrorReason> read(const QByteArray &svg);
};

} // namespace documents
} // namespace host
