// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDocument.h"
#include "LabelExtent.h"

namespace host {
inline namespace documents {

/// Lays the document's pages on labels of one paper and draws them as they lie on the tape: the edge that
/// leaves the printer first on the left, the length of the label from left to right. It keeps nothing, so
/// each thread has its own, of its own document.
///
/// A page that stands upright while the label lies (or the other way round) is turned, so that its left
/// edge comes first; otherwise its top does. A page larger than the label is shrunk to it, a smaller one
/// stays as large as it is; both are centred.
class LabelDrawing {
public:
    /// The paper's width and length in points. The document is borrowed.
    LabelDrawing(const LabelDocument &document, QSizeF paper);

    QSizeF paper() const { return m_paper; }
    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_label; }
    bool isTurned(int page) const;
    /// How large the page is on the label: 1, or less when it is shrunk.
    double scale(int page) const;

    /// The whole label, white where the page has nothing. Fewer pixels than asked for when the image would
    /// be too large to hold.
    QImage draw(int page, double pixelsPerMillimetre) const;
    /// The label's length and the blank at its ends, as fine as the usual label printer's dots.
    LabelExtent measure(int page) const;

private:
    /// The page's size on the strip in millimetres, before shrinking: length and width.
    QSizeF pageOnStrip(int page) const;
    /// Pixels a millimetre for an image that is not too large.
    double possibleResolution(double pixelsPerMillimetre) const;
    QSize labelPixels(double pixelsPerMillimetre) const;
    /// The page's size in pixels, as one reads it.
    QSize pagePixels(int page, double pixelsPerMillimetre) const;

    const LabelDocument &m_document;
    QSizeF m_paper;
    QSizeF m_label;
};

} // namespace documents
} // namespace host
