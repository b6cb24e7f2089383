// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDrawing.h"
#include "LabelExtent.h"

#include <QCache>
#include <QHash>

#include <memory>

namespace host {
inline namespace documents {

class BlankMeasurer;
class LabelPictures;
class PageThread;

/// Whether only a label's length is asked for, or also the blank at its ends, which takes a drawing.
enum class MeasureBlank { No, Yes };

/// The labels of a document on one paper: their lengths and pictures. With a page thread, as windows have it,
/// blank is measured and pictures for the screen are drawn in the background; without one, at once.
class LabelRenderer {
public:
    /// The paper's width and length in points. The document is borrowed.
    LabelRenderer(const LabelDocument &document, QSizeF paper);
    /// The thread is borrowed and is the document's.
    LabelRenderer(const LabelDocument &document, QSizeF paper, PageThread &thread);
    ~LabelRenderer();

    QSizeF paper() const { return m_drawing.paper(); }
    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_drawing.labelSize(); }
    /// Whether the page is too large for the label. With a page thread, false for a page whose size is not
    /// read yet; it is when its picture is there.
    bool shrinks(int page) const;
    /// The direction on the strip in which the page's lines of text run, for mirroring.
    Qt::Orientation readingDirection(int page) const
    {
        return m_drawing.isTurned(page) ? Qt::Horizontal : Qt::Vertical;
    }
    /// With a page thread, a page whose blank is asked for and not known is not measured yet in the answer;
    /// it is measured in the background, and measurer() reports it.
    LabelExtent extent(int page, MeasureBlank blank) const;
    /// Null without a page thread.
    BlankMeasurer *measurer() const { return m_measurer.get(); }

    /// The whole label, white where the page has nothing, drawn at once. Fewer pixels than asked for when the
    /// image would be too large to hold. The images drawn last are kept.
    QImage render(int page, double pixelsPerMillimetre) const;
    /// Pictures for a widget, drawn in the background; null without a page thread.
    std::unique_ptr<LabelPictures> makePictures() const;

private:
    const LabelDocument &m_document;
    LabelDrawing m_drawing;
    PageThread *m_thread = nullptr;
    std::unique_ptr<BlankMeasurer> m_measurer;
    mutable QHash<int, LabelExtent> m_measured;
    mutable QCache<QPair<int, int>, QImage> m_images;
};

} // namespace documents
} // namespace host
