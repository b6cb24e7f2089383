// SPDX-License-Identifier: Apache-2.0
#include "StripPreview.h"

#include <host/CutPlanWords.h>

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace dialog {

namespace {

/// Narrow tape is not blown up beyond this, so that a few labels stay in sight.
constexpr double largestScale = 6.0;
constexpr double smallestScale = 0.4;

} // namespace

StripPreview::StripPreview(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setAccessibleName(tr("Label strip"));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    // The tape leaves the printer to the left, whichever way one reads.
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFrameShape(QFrame::StyledPanel);
    setMinimumHeight(sizeHint().height());
}

void StripPreview::setPlan(const host::CutPlan &plan, const host::LabelRenderer &renderer)
{
    m_plan = &plan;
    m_renderer = &renderer;
    setAccessibleDescription(host::cutPlanFigures(plan) + u' ' + host::cutPlanSentences(plan).join(u' '));
    layOut();
}

void StripPreview::clear()
{
    m_plan = nullptr;
    m_layout.reset();
    setAccessibleDescription(QString());
    viewport()->update();
    // Mostly another plan follows at once, and the strip stays where it is scrolled to.
    QMetaObject::invokeMethod(this, &StripPreview::layOut, Qt::QueuedConnection);
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
    if (!m_plan) {
        horizontalScrollBar()->setRange(0, 0);
        return;
    }
    const double tapeWidth = m_renderer->labelSize().height();
    // The layout needs 18 units above and below the tape, and a little air. The scroll bar's room is never
    // used: a strip that grew into it when it goes would need it again.
    const int height = maximumViewportSize().height() - horizontalScrollBar()->sizeHint().height();
    const double room = height - 19.0 * unitPixels();
    m_pixelsPerMillimetre = qBound(smallestScale, room / tapeWidth, largestScale);
    m_layout.emplace(*m_plan, tapeWidth, unitPixels() / m_pixelsPerMillimetre);
    const int length = qRound(m_layout->bounds().width() * m_pixelsPerMillimetre);
    horizontalScrollBar()->setRange(0, qMax(0, length - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(viewport()->width() / 10);
}

void StripPreview::paintEvent(QPaintEvent *)
{
    if (!m_layout)
        return;
    QPainter painter(viewport());
    const QRectF bounds = m_layout->bounds();
    const double spare = viewport()->height() - bounds.height() * m_pixelsPerMillimetre;
    painter.translate(-horizontalScrollBar()->value(), spare / 2.0);
    painter.scale(m_pixelsPerMillimetre, m_pixelsPerMillimetre);
    painter.translate(-bounds.topLeft());
    const double left = bounds.left() + horizontalScrollBar()->value() / m_pixelsPerMillimetre;
    const double right = left + viewport()->width() / m_pixelsPerMillimetre;
    const host::StripPainter strip(*m_layout, *m_renderer, host::StripColors::forPalette(palette()),
                                   m_pixelsPerMillimetre * devicePixelRatioF());
    if (std::exchange(m_draftFirst, false)) {
        strip.paintDraft(painter, left, right);
        QTimer::singleShot(0, viewport(), [this] { viewport()->update(); });
    } else {
        strip.paint(painter, left, right);
    }
}

void StripPreview::resizeEvent(QResizeEvent *)
{
    layOut();
}

void StripPreview::wheelEvent(QWheelEvent *event)
{
    // The strip has one direction only, so an ordinary wheel moves along it.
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

} // namespace dialog
