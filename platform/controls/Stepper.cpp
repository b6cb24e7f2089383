// SPDX-License-Identifier: Apache-2.0
#include "Stepper.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace platform {
inline namespace controls {

namespace {

constexpr int firstRepeatDelay = 400; // milliseconds
constexpr int repeatInterval = 60;    // milliseconds
constexpr int pageStep = 10;
constexpr double cornerRadius = 3.0;

} // namespace

Stepper::Stepper(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Stepper::setValue(std::int32_t value)
{
    setValueWithin(value);
}

void Stepper::setValueWithin(std::int64_t value)
{
    m_value =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(value, m_minimum, std::max(m_minimum, m_maximum)));
    QAccessibleValueChangeEvent event(this, m_value);
    QAccessible::updateAccessibility(&event);
}

void Stepper::stepTo(std::int64_t value)
{
    if (!isEnabled())
        return;
    setValueWithin(value);
    Q_EMIT stepped();
}

QSize Stepper::sizeHint() const
{
    return {20, 24};
}

Stepper::Arrow Stepper::arrowAt(QPoint position) const
{
    return position.y() < height() / 2 ? Arrow::Up : Arrow::Down;
}

QRect Stepper::arrowRect(Arrow arrow) const
{
    const int half = height() / 2;
    return arrow == Arrow::Up ? QRect(0, 0, width(), half) : QRect(0, half, width(), height() - half);
}

void Stepper::stepBy(std::int64_t amount)
{
    stepTo(m_value + amount);
}

void Stepper::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_pressed = arrowAt(event->position().toPoint());
    m_repeat.start(firstRepeatDelay, this);
    update();
    stepBy(*m_pressed == Arrow::Up ? 1 : -1);
}

void Stepper::mouseReleaseEvent(QMouseEvent *)
{
    release();
}

void Stepper::release()
{
    m_repeat.stop();
    m_pressed.reset();
    update();
}

void Stepper::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_repeat.timerId() || !m_pressed)
        return QWidget::timerEvent(event);
    m_repeat.start(repeatInterval, this);
    stepBy(*m_pressed == Arrow::Up ? 1 : -1);
}

void Stepper::changeEvent(QEvent *event)
{
    // A stepper that is disabled while an arrow is pressed must stop stepping.
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        release();
    QWidget::changeEvent(event);
}

void Stepper::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return stepBy(1);
    case Qt::Key_Down:
        return stepBy(-1);
    case Qt::Key_PageUp:
        return stepBy(pageStep);
    case Qt::Key_PageDown:
        return stepBy(-pageStep);
    default:
        QWidget::keyPressEvent(event);
    }
}

void Stepper::wheelEvent(QWheelEvent *event)
{
    // Fine wheels and touch pads report fractions of a notch, which add up to whole steps.
    m_wheelRemainder += event->angleDelta().y();
    const int steps = m_wheelRemainder / QWheelEvent::DefaultDeltasPerStep;
    m_wheelRemainder -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        stepBy(steps);
    event->accept();
}

void Stepper::drawArrow(QPainter &painter, Arrow arrow) const
{
    const QRectF half = arrowRect(arrow);
    if (m_pressed == arrow)
        painter.fillRect(half, palette().color(QPalette::Midlight));
    const double direction = arrow == Arrow::Up ? -1.0 : 1.0;
    const QPointF centre = half.center();
    constexpr double reach = 3.5;
    QPainterPath chevron(centre + QPointF(-reach, -direction * reach / 2));
    chevron.lineTo(centre + QPointF(0, direction * reach / 2));
    chevron.lineTo(centre + QPointF(reach, -direction * reach / 2));
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(
        QPen(palette().color(group, QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(chevron);
}

void Stepper::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
    painter.setClipPath(outline);
    painter.fillPath(outline, palette().color(QPalette::Button));
    drawArrow(painter, Arrow::Up);
    drawArrow(painter, Arrow::Down);
    painter.setClipping(false);
    const QColor line = hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Dark);
    painter.setPen(QPen(isEnabled() ? line : palette().color(QPalette::Mid), 1.0));
    painter.drawPath(outline);
    const int half = height() / 2;
    const double middle = half + 0.5;
    painter.drawLine(QPointF(1, middle), QPointF(width() - 1, middle));
}

} // namespace controls
} // namespace platform
