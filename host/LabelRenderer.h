// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"
#include "LabelDocument.h"

#include <QCache>
#include <QHash>

namespace host {

/// Whether only a label's length is asked for, or also the blank at its ends, which takes a drawing.
enum class MeasureBlank { No, Yes };

/// Lays the document's pages on labels of one paper and draws them as they lie on the tape: the edge that
/// leaves the printer first on the left, the length of the label from left to right.
///
/// A page that stands upright while the label lies (or the other way round) is turned, so that its left
/// edge comes first; otherwise its top does. A page larger than the label is shrunk to it, a smaller one
/// stays as large as it is; both are centred.
class LabelRenderer {
public:
    /// The paper's width and length in points. The document is borrowed.
    LabelRenderer(const LabelDocument &document, QSizeF paper);

    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_label; }
    /// Whether the page is too large for the label.
    bool shrinks(int page) const { return scale(page) < 1.0; }
    /// The direction on the strip in which the page's lines of text run, for mirroring.
    Qt::Orientation readingDirection(int page) const
    {
        return isTurned(page) ? Qt::Horizontal : Qt::Vertical;
    }
    LabelExtent extent(int page, MeasureBlank blank) const;

    /// The whole label, white where the page has nothing. Fewer pixels than asked for when the image would
    /// be too large to hold. The images drawn last are kept.
    QImage render(int page, double pixelsPerMillimetre) const;

private:
    bool isTurned(int page) const;
    /// The page's size on the strip in millimetres, before shrinking: length and width.
    QSizeF pageOnStrip(int page) const;
    double scale(int page) const;
    QImage draw(int page, double pixelsPerMillimetre) const;

    const LabelDocument &m_document;
    QSizeF m_paper;
    QSizeF m_label;
    mutable QHash<int, LabelExtent> m_measured;
    mutable QCache<QPair<int, int>, QImage> m_images;
};

} // namespace host
