// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDrawing.h"
#include "LabelExtent.h"

#include <QCache>
#include <QHash>

#include <memory>

namespace host {
inline namespace labels {

class BlankMeasurer;
class LabelPictures;
class PageThread;

/// Whether only the length of a label is requested, or also the blank at its ends, which requires drawing
/// it.
enum class MeasureBlank { No, Yes };

/// The labels of a document on one paper: their lengths and pictures. With a page thread, as in windows,
/// blank is measured and pictures for the screen are drawn in the background; without one, immediately.
class LabelRenderer {
public:
    /// The document is borrowed.
    LabelRenderer(const LabelDocument &document, const PageLayout &layout);
    /// The thread is borrowed and belongs to the document.
    LabelRenderer(const LabelDocument &document, const PageLayout &layout, PageThread &thread);
    ~LabelRenderer();

    /// The layout of all pages.
    const PageLayout &layout() const { return m_drawing.layout(); }
    /// Length along the tape and width across it, in millimetres.
    QSizeF labelSize() const { return m_drawing.labelSize(); }
    /// Returns whether the page is larger than the label. With a page thread, false for a page whose size is
    /// not read yet; the size is known once its picture is drawn.
    bool shrinks(int page) const;
    /// Returns the scale of the page on the label; see shrinks().
    double scale(int page) const { return m_drawing.place(page).scale; }
    /// Returns the extent of the page. With a page thread, a blank that is not known yet is 0 (isMeasured is
    /// false) and is measured in the background; measurer() reports it.
    LabelExtent extent(int page, MeasureBlank blank) const;
    /// The background measurer; null without a page thread.
    BlankMeasurer *measurer() const { return m_measurer.get(); }

    /// Draws the whole label on a white background immediately. The resolution is lower than requested if
    /// the image would be too large. Caches the last images.
    QImage render(int page, double pixelsPerMillimetre) const;
    /// Returns pictures for a widget, drawn in the background; null without a page thread.
    std::unique_ptr<LabelPictures> makePictures() const;

private:
    const LabelDocument &m_document;
    LabelDrawing m_drawing;
    PageThread *m_thread = nullptr;
    std::unique_ptr<BlankMeasurer> m_measurer;
    mutable QHash<int, LabelExtent> m_measured;
    mutable QCache<QPair<int, int>, QImage> m_images;
};

} // namespace labels
} // namespace host
