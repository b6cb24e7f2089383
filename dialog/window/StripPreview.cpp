// SPDX-License-Identifier: Apache-2.0
#include "StripPreview.h"

#include <host/base/Length.h>
#include <host/strip/CutPlanText.h>

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace dialog {
inline namespace window {

namespace {

/// In pixels per millimetre. The maximum keeps several labels of narrow tape visible.
constexpr double maxScale = 6.0;
constexpr double minScale = 0.4;

} // namespace

StripPreview::StripPreview(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setAccessibleName(tr("Label strip"));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    // The tape leaves the printer to the left in every reading direction.
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFrameShape(QFrame::StyledPanel);
    setMinimumHeight(sizeHint().height());
}

void StripPreview::setPlan(const host::CutPlan &plan, const host::LabelRenderer &renderer)
{
    m_renderer = &renderer;
    const bool hasSameLayout = m_pageLayout == renderer.layout();
    if (hasSameLayout && m_plan == plan)
        return;
    m_layout.reset();
    m_plan = plan;
    m_pageLayout = renderer.layout();
    if (!hasSameLayout || !m_pictures) {
        m_pictures = renderer.makePictures();
        if (m_pictures)
            connect(m_pictures.get(), &host::LabelPictures::drawn, this, [this] { viewport()->update(); });
    }
    setAccessibleDescription(host::cutPlanFigures(plan) + u' ' + host::cutPlanDescription(plan).join(u' '));
    layOut();
}

void StripPreview::clear()
{
    m_renderer = nullptr;
    // Usually another plan follows immediately; keep the strip and its scroll position until then.
    QMetaObject::invokeMethod(this, &StripPreview::dropCleared, Qt::QueuedConnection);
}

void StripPreview::dropCleared()
{
    if (m_renderer || !m_plan)
        return;
    m_layout.reset();
    m_plan.reset();
    setAccessibleDescription(QString());
    layOut();
}

QSize StripPreview::sizeHint() const
{
    return {600, qRound(unitPixels() * 46.0)};
}

double StripPreview::unitPixels() const
{
    return fontMetrics().height() / 4.2;
}

void StripPreview::layOut()
{
    viewport()->update();
    m_isComplete = false;
    if (!m_plan) {
        horizontalScrollBar()->setRange(0, 0);
        return;
    }
    const host::Millimetres tapeWidth(host::Points(m_pageLayout.paper.width()));
    // The layout needs 18 units above and below the tape, and some spacing. The room of the scroll bar is
    // always reserved: a strip that used it while the bar is hidden would need the bar again.
    const int height = maximumViewportSize().height() - horizontalScrollBar()->sizeHint().height();
    const double room = height - 19.0 * unitPixels();
    m_pixelsPerMillimetre = qBound(minScale, room / tapeWidth.number(), maxScale);
    m_layout.emplace(*m_plan, tapeWidth, host::Millimetres(unitPixels() / m_pixelsPerMillimetre));
    const int length = qRound(m_layout->bounds().width() * m_pixelsPerMillimetre);
    horizontalScrollBar()->setRange(0, qMax(0, length - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(viewport()->width() / 10);
}

void StripPreview::paintEvent(QPaintEvent *)
{
    dropCleared();
    if (!m_layout)
        return;
    QPainter painter(viewport());
    paintStrip(painter);
}

void StripPreview::paintStrip(QPainter &painter)
{
    const QRectF bounds = m_layout->bounds();
    const double spare = viewport()->height() - bounds.height() * m_pixelsPerMillimetre;
    painter.translate(-horizontalScrollBar()->value(), spare / 2.0);
    painter.scale(m_pixelsPerMillimetre, m_pixelsPerMillimetre);
    painter.translate(-bounds.topLeft());
    const double left = bounds.left() + horizontalScrollBar()->value() / m_pixelsPerMillimetre;
    const double right = left + viewport()->width() / m_pixelsPerMillimetre;
    const host::StripPainter strip(*m_layout, *m_renderer, host::StripColors::forPalette(palette()),
                                   m_pixelsPerMillimetre * devicePixelRatioF(), m_pictures.get());
    requestPictures(left, right);
    strip.paint(painter, left, right);
    finishPainting();
}

void StripPreview::requestPictures(double left, double right)
{
    if (!m_pictures)
        return;
    const auto [first, end] = m_layout->labelsBetween(left, right);
    std::vector<int> pages;
    for (std::size_t i = first; i < end; ++i)
        pages.push_back(m_plan->labels()[i].page);
    m_pictures->show(std::move(pages), m_pixelsPerMillimetre * devicePixelRatioF());
}

void StripPreview::finishPainting()
{
    const bool isFinal = m_plan->isMeasured() && (!m_pictures || m_pictures->isComplete());
    if (!std::exchange(m_isComplete, isFinal) && isFinal)
        Q_EMIT completed();
}

void StripPreview::scrollContentsBy(int, int)
{
    m_isComplete = false;
    viewport()->update();
}

void StripPreview::resizeEvent(QResizeEvent *)
{
    layOut();
}

void StripPreview::wheelEvent(QWheelEvent *event)
{
    // The strip scrolls in one direction only; a vertical wheel scrolls it, too.
    const QPoint delta = event->angleDelta();
    const int amount = delta.x() != 0 ? delta.x() : delta.y();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - amount);
    event->accept();
}

void StripPreview::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        setMinimumHeight(sizeHint().height());
        layOut();
    }
}

} // namespace window
} // namespace dialog
