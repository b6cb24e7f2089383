// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelExtent.h"
#include <host/documents/LabelDocument.h>

namespace host {
inline namespace labels {

/// Places the pages of a document on labels of one paper and draws them as on the tape: the edge that leaves
/// the printer first is on the left, the length of the label runs from left to right. Caches nothing; each
/// thread has an instance for its own document.
///
/// A portrait page on a landscape label, or the reverse, is rotated, so that its left edge leaves the
/// printer first; otherwise its top edge does. A page larger than the label is reduced to fit, a smaller one
/// keeps its size; both are centered.
class LabelDrawing {
public:
    /// The paper's width and length in points. The document is borrowed.
    LabelDrawing(const LabelDocument &document, QSizeF paper);

    /// The paper's width and length in points.
    QSizeF paper() const { return m_paper; }
    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_label; }
    bool isTurned(int page) const;
    /// Returns the scale of the page on the label: 1, or less if it is reduced.
    double scale(int page) const;

    /// Returns the whole label on a white background. The resolution is lower than requested if the image
    /// would be too large.
    QImage draw(int page, double pixelsPerMillimetre) const;
    /// Returns the label's length and the blank at its ends, measured at the resolution of common label
    /// printers.
    LabelExtent measure(int page) const;

private:
    /// Returns the length and width of the page on the strip in millimetres, before reduction.
    QSizeF pageOnStrip(int page) const;
    /// Returns the pixels per millimetre for an image that is not too large.
    double possibleResolution(double pixelsPerMillimetre) const;
    QSize labelPixels(double pixelsPerMillimetre) const;
    /// Returns the page's size in pixels, in reading orientation.
    QSize pagePixels(int page, double pixelsPerMillimetre) const;

    const LabelDocument &m_document;
    QSizeF m_paper;
    QSizeF m_label;
};

} // namespace labels
} // namespace host
