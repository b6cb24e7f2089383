// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/strip/StripPainter.h>

#include <QAbstractScrollArea>

#include <memory>
#include <optional>

namespace dialog {
inline namespace window {

/// Shows the strip as it will leave the printer, with all cuts, as large as the height allows. Long strips
/// scroll, also with the arrow keys. The accessible description is the description of the plan. If the
/// renderer has a page thread, labels are drawn in the background and are white until then.
class StripPreview : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// Creates an empty preview.
    explicit StripPreview(QWidget *parent);

    /// Shows a copy of the plan; cheap if nothing has changed. The renderer is not owned and must exist until
    /// the next call or clear(). All renderers must be of the same document.
    void setPlan(const host::CutPlan &plan, const host::LabelRenderer &renderer);
    /// Releases the renderer and, unless another plan is set before control returns to the event loop,
    /// removes the plan.
    void clear();
    /// Returns the plan that is shown; null if there is none.
    const host::CutPlan *plan() const { return m_plan && m_renderer ? &*m_plan : nullptr; }

    /// Returns whether everything that is visible has been painted in its final state: measured, and with all
    /// pictures.
    bool isComplete() const { return !isVisible() || !m_plan || m_isComplete; }

Q_SIGNALS:
    /// Emitted when isComplete() has become true by painting.
    void completed();

public:
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void layOut();
    /// Removes the plan if clear() was called and no other plan has been set.
    void dropCleared();
    void paintStrip(QPainter &painter);
    /// Requests the pictures of the labels between these positions of the layout.
    void requestPictures(double left, double right);
    void finishPainting();
    /// Returns the size of one unit of the layout in pixels, which depends on the font.
    double unitPixels() const;

    std::optional<host::CutPlan> m_plan;
    /// Null after clear().
    const host::LabelRenderer *m_renderer = nullptr;
    /// The layout of the pages that are shown.
    host::PageLayout m_pageLayout;
    /// Null if labels are drawn synchronously.
    std::unique_ptr<host::LabelPictures> m_pictures;
    std::optional<host::StripLayout> m_layout;
    double m_pixelsPerMillimetre = 1.0;
    bool m_isComplete = false;
};

} // namespace window
} // namespace dialog
