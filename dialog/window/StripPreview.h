// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/strip/StripPainter.h>

#include <QAbstractScrollArea>

#include <memory>
#include <optional>

namespace dialog {
inline namespace window {

/// The strip as it will leave the printer, with every cut, as large as the height allows. Longer strips
/// scroll, by the arrow keys too. It is spoken as the plan's words. With a page thread, labels are drawn in
/// the background, and are white until then.
class StripPreview : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit StripPreview(QWidget *parent);

    /// Shows the plan, of which it keeps a copy; costs little when nothing has changed. The renderer is
    /// borrowed until the next call or clear(), and all renderers are of one document.
    void setPlan(const host::CutPlan &plan, const host::LabelRenderer &renderer);
    /// Shows nothing, unless another plan follows at once.
    void clear();
    /// The plan that is shown; null while there is none.
    const host::CutPlan *plan() const { return m_plan && m_renderer ? &*m_plan : nullptr; }

    /// Whether everything in sight has been painted as it will stay: measured, and with all pictures.
    bool isComplete() const { return !isVisible() || !m_plan || m_isComplete; }

Q_SIGNALS:
    /// A painting has made it complete.
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
    /// Drops the plan when clear() was called and no plan has followed.
    void dropCleared();
    void paintStrip(QPainter &painter);
    /// Has the pictures drawn that the stretch shows.
    void requestPictures(double left, double right);
    void finishPainting();
    /// Pixels of one unit of the layout, by the font.
    double unitPixels() const;

    std::optional<host::CutPlan> m_plan;
    /// Null after clear().
    const host::LabelRenderer *m_renderer = nullptr;
    /// The paper that is shown, in points.
    QSizeF m_paper;
    /// Null when labels are drawn at once.
    std::unique_ptr<host::LabelPictures> m_pictures;
    std::optional<host::StripLayout> m_layout;
    double m_pixelsPerMillimetre = 1.0;
    bool m_isComplete = false;
};

} // namespace window
} // namespace dialog
