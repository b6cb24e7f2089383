// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelExtent.h"
#include <host/documents/LabelDocument.h>
#include <host/layout/PageLayout.h>

class QPainter;

namespace host {
inline namespace labels {

/// Draws the pages of a document on labels, where the layout places them and as on the tape: the edge that
/// leaves the printer first is on the left, the length of the label runs from left to right. What the printer
/// cannot print, outside the printable area, is drawn faint. Caches nothing; each thread has an instance for
/// its own document.
class LabelDrawing {
public:
    /// The document is borrowed.
    LabelDrawing(const LabelDocument &document, const PageLayout &layout);

    /// The layout of all pages.
    const PageLayout &layout() const { return m_layout; }
    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_label; }
    /// Returns the place of the page on the label.
    PagePlacement place(int page) const;

    /// Returns the whole label on a white background. The resolution is lower than requested if the image
    /// would be too large. A page that cannot be drawn is a crossed-out area with its number.
    QImage draw(int page, double pixelsPerMillimetre) const;
    /// Returns the label's length and the blank at its ends, measured at the resolution of common label
    /// printers. What is not printable is blank.
    LabelExtent measure(int page) const;

private:
    /// Returns the pixels per millimetre for images that are not too large.
    double possibleResolution(const PagePlacement &placement, double pixelsPerMillimetre) const;
    /// Returns a rectangle on the label, in points, as it lies on the strip, in pixels.
    QRectF onStrip(const QRectF &onLabel, double pixelsPerMillimetre) const;
    QSize labelPixels(double pixelsPerMillimetre) const;
    /// Draws what stands for a page that cannot be drawn.
    static void drawPlaceholder(QPainter &painter, const QRectF &area, int page);
    /// Returns whether the image of a page has ink outside of the part that can be printed.
    static bool hasInkOutside(const QImage &image, const QRect &part);

    const LabelDocument &m_document;
    PageLayout m_layout;
    QSizeF m_label;
};

} // namespace labels
} // namespace host
