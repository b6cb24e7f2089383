// SPDX-License-Identifier: Apache-2.0
#include "StripPainter.h"

#include "CutPlanText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace host {
inline namespace strip {

namespace {

struct StripPainterText {
    Q_DECLARE_TR_FUNCTIONS(host::strip::StripPainter)
};

const QColor backingColor(0xd8, 0xc3, 0x94);
const QColor fullCutColor(0xd6, 0x2b, 0x1f);
const QColor halfCutColor(0xc4, 0x6a, 0x00);
const QColor markColor(0x30, 0x30, 0x30);
const QColor printerColor(0x5a, 0x62, 0x6c);

/// Draws scissors that cut downwards at the origin, two units wide and four high.
void paintScissors(QPainter &painter, double unit)
{
    painter.setPen(QPen(fullCutColor, 0.45 * unit, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(-1.3, -3.0) * unit, QPointF(0.9, 1.4) * unit);
    painter.drawLine(QPointF(1.3, -3.0) * unit, QPointF(-0.9, 1.4) * unit);
    painter.drawEllipse(QPointF(-1.7, -3.9) * unit, 0.95 * unit, 0.95 * unit);
    painter.drawEllipse(QPointF(1.7, -3.9) * unit, 0.95 * unit, 0.95 * unit);
}

/// Returns the outline of tape that continues after an end without a cut and is drawn torn off.
QPolygonF tornTape(double x, double width, double top, double bottom)
{
    QPolygonF outline{QPointF(x, top)};
    constexpr int teeth = 6;
    for (int i = 0; i <= 2 * teeth; ++i) {
        const double y = top + (bottom - top) * i / (2 * teeth);
        outline.append({x + width * (i % 2 == 0 ? 1.0 : 0.8), y});
    }
    outline.append({x, bottom});
    return outline;
}

} // namespace

StripColors StripColors::forPaper()
{
    return {Qt::black, QColor(0x70, 0x70, 0x70), Qt::white};
}

StripColors StripColors::forPalette(const QPalette &palette)
{
    QColor faint = palette.color(QPalette::WindowText);
    faint.setAlphaF(0.7F);
    return {palette.color(QPalette::WindowText), faint, palette.color(QPalette::Window)};
}

StripPainter::StripPainter(const StripLayout &layout, const LabelRenderer &renderer,
                           const StripColors &colors, double pixelsPerMillimetre,
                           const LabelPictures *pictures)
    : m_layout(layout)
    , m_renderer(renderer)
    , m_pictures(pictures)
    , m_colors(colors)
    , m_resolution(pixelsPerMillimetre)
{
}

void StripPainter::paint(QPainter &painter, double left, double right) const
{
    if (m_layout.plan().labels().empty())
        return;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const auto [first, end] = m_layout.labelsBetween(left, right);
    paintBacking(painter, left, right);
    for (std::size_t i = first; i < end; ++i)
        paintLabel(painter, i);
    for (std::size_t i = first; i < end; ++i)
        paintBoundary(painter, i);
    if (end == m_layout.plan().labels().size())
        paintEnd(painter);
    paintOutlines(painter, left, right);
    painter.restore();
}

QRectF StripPainter::backing(const QRectF &tape) const
{
    return tape.adjusted(0.0, -units(0.6), 0.0, units(0.6));
}

void StripPainter::paintBacking(QPainter &painter, double left, double right) const
{
    const auto [first, end] = m_layout.piecesBetween(left, right);
    for (std::size_t i = first; i < end; ++i) {
        const QRectF piece = m_layout.piece(i);
        painter.fillRect(backing(piece), backingColor);
        paintPieceLength(painter, i);
    }
    const QRectF margin = m_layout.leadingMargin();
    if (margin.width() > 0.0 && left <= margin.right()) {
        painter.fillRect(margin, Qt::white);
        painter.fillRect(margin, QBrush(QColor(0, 0, 0, 40), Qt::BDiagPattern));
    }
}

void StripPainter::paintOutlines(QPainter &painter, double left, double right) const
{
    // Without outlines, the ends of white tape would be invisible on white paper.
    painter.setPen(QPen(backingColor.darker(150), units(0.18)));
    painter.setBrush(Qt::NoBrush);
    const auto [first, end] = m_layout.piecesBetween(left, right);
    for (std::size_t i = first; i < end; ++i) {
        const QRectF piece = m_layout.piece(i);
        const QRectF outline = backing(piece);
        const bool last = i + 1 == m_layout.plan().pieces().size();
        painter.drawLine(outline.topLeft(), outline.topRight());
        painter.drawLine(outline.topLeft(), outline.bottomLeft());
        painter.drawLine(outline.bottomLeft(), outline.bottomRight());
        if (!last || m_layout.plan().labels().back().end.fullCut)
            painter.drawLine(outline.topRight(), outline.bottomRight());
    }
}

void StripPainter::paintLabel(QPainter &painter, std::size_t index) const
{
    const PlannedLabel &planned = m_layout.plan().labels()[index];
    const QRectF label = m_layout.label(index);
    if (!m_pictures)
        paintPicture(painter, index, m_renderer.render(planned.page, m_resolution));
    else if (const QImage *const picture = m_pictures->picture(planned.page))
        paintPicture(painter, index, *picture);
    else
        painter.fillRect(label, Qt::white);
    const QRectF number(label.left(), -units(8.5), label.width(), units(3.6));
    if (label.width() > units(5.0))
        paintText(painter, number, QLocale().toString(static_cast<qulonglong>(index) + 1), m_colors.faint);
}

void StripPainter::paintPicture(QPainter &painter, std::size_t index, const QImage &picture) const
{
    const PlannedLabel &planned = m_layout.plan().labels()[index];
    const QRectF label = m_layout.label(index);
    painter.save();
    painter.setClipRect(label, Qt::IntersectClip);
    if (m_layout.plan().effects().mirror) {
        // Printers mirror the raster of the label across the tape, whichever way the page is turned on it.
        painter.translate(label.center());
        painter.scale(1.0, -1.0);
        painter.translate(-label.center());
    }
    // Draws the whole image clipped, so that a PDF contains it only once, however often the label is printed.
    const QRectF whole(QPointF(label.left() - planned.trimmedBefore.number(), 0.0), m_renderer.labelSize());
    painter.drawImage(whole, picture);
    painter.restore();
}

void StripPainter::paintBoundary(QPainter &painter, std::size_t index) const
{
    const LabelEnd &end = m_layout.plan().labels()[index].end;
    const double x = m_layout.boundaryAfter(index);
    const bool last = index + 1 == m_layout.plan().labels().size();
    if (end.fullCut)
        paintFullCut(painter, x);
    else if (!last && !end.halfCut && !end.cutMark) {
        painter.setPen(QPen(QColor(0, 0, 0, 60), units(0.15), Qt::DotLine));
        painter.drawLine(QPointF(x, 0.0), QPointF(x, m_layout.tapeWidth()));
    }
    if (end.halfCut)
        paintHalfCut(painter, x);
    if (end.cutMark)
        paintCutMark(painter, x);
}

void StripPainter::paintFullCut(QPainter &painter, double x) const
{
    painter.setPen(QPen(fullCutColor, units(0.35), Qt::DashLine, Qt::FlatCap));
    painter.drawLine(QPointF(x, -units(1.0)), QPointF(x, m_layout.tapeWidth() + units(1.6)));
    painter.save();
    painter.translate(x, -units(2.4));
    paintScissors(painter, m_layout.unit());
    painter.restore();
}

void StripPainter::paintHalfCut(QPainter &painter, double x) const
{
    // The label layer is cut, the backing is not.
    painter.fillRect(QRectF(x - units(0.35), 0.0, units(0.7), m_layout.tapeWidth()), backingColor);
    painter.setPen(QPen(halfCutColor, units(0.3), Qt::DashLine, Qt::FlatCap));
    painter.drawLine(QPointF(x, 0.0), QPointF(x, m_layout.tapeWidth()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(halfCutColor);
    const double tip = -units(0.2);
    painter.drawPolygon(QPolygonF{QPointF(x, tip), QPointF(x - units(1.1), tip - units(2.4)),
                                  QPointF(x + units(1.1), tip - units(2.4))});
}

void StripPainter::paintCutMark(QPainter &painter, double x) const
{
    painter.setPen(QPen(markColor, units(0.3), Qt::CustomDashLine, Qt::FlatCap));
    QPen pen = painter.pen();
    pen.setDashPattern({1.0, 1.6});
    painter.setPen(pen);
    painter.drawLine(QPointF(x, 0.0), QPointF(x, m_layout.tapeWidth()));
    // Ticks at both edges of the tape distinguish the printed mark from a cut.
    painter.setPen(QPen(markColor, units(0.5), Qt::SolidLine, Qt::FlatCap));
    const double tick = qMin(units(1.8), m_layout.tapeWidth() / 4.0);
    painter.drawLine(QPointF(x, 0.0), QPointF(x, tick));
    painter.drawLine(QPointF(x, m_layout.tapeWidth() - tick), QPointF(x, m_layout.tapeWidth()));
}

void StripPainter::paintEnd(QPainter &painter) const
{
    const std::size_t last = m_layout.plan().labels().size() - 1;
    const LabelEnd &end = m_layout.plan().labels()[last].end;
    const double x = m_layout.label(last).right();
    if (end.held)
        paintPrinter(painter, x);
    else if (!end.fullCut)
        paintTornEnd(painter, x);
}

void StripPainter::paintPrinter(QPainter &painter, double x) const
{
    const QRectF next(x, 0.0, units(20.0), m_layout.tapeWidth());
    painter.fillRect(backing(next), backingColor);
    painter.setPen(QPen(markColor, units(0.25), Qt::DashLine));
    painter.setBrush(Qt::white);
    painter.drawRect(next.adjusted(0.0, units(0.2), 0.0, -units(0.2)));
    paintText(painter, next.adjusted(units(2.0), 0.0, 0.0, 0.0), StripPainterText::tr("next job"), markColor);

    QColor housing = printerColor;
    housing.setAlphaF(0.55F);
    painter.setPen(QPen(printerColor, units(0.4)));
    painter.setBrush(housing);
    const QRectF body(x - units(1.2), -units(4.5), units(25.0), m_layout.tapeWidth() + units(9.0));
    QPainterPath outline;
    outline.addRoundedRect(body, units(2.0), units(2.0));
    QPainterPath window;
    window.addRoundedRect(QRectF(x + units(1.0), units(0.2), units(16.0), m_layout.tapeWidth() - units(0.4)),
                          units(1.0), units(1.0));
    painter.drawPath(outline.subtracted(window));
    painter.setPen(QPen(printerColor.darker(160), units(0.9), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(body.left(), -units(1.5)),
                     QPointF(body.left(), m_layout.tapeWidth() + units(1.5)));
}

void StripPainter::paintTornEnd(QPainter &painter, double x) const
{
    const double bottom = m_layout.tapeWidth();
    painter.setPen(Qt::NoPen);
    painter.setBrush(backingColor);
    painter.drawPolygon(tornTape(x, units(10.0), -units(0.6), bottom + units(0.6)));
    painter.setBrush(Qt::white);
    painter.drawPolygon(tornTape(x, units(9.0), 0.0, bottom));
    painter.setPen(QPen(QColor(0, 0, 0, 60), units(0.15), Qt::DotLine));
    painter.drawLine(QPointF(x, 0.0), QPointF(x, bottom));
}

void StripPainter::paintPieceLength(QPainter &painter, std::size_t index) const
{
    const QRectF piece = m_layout.piece(index);
    const Piece &planned = m_layout.plan().pieces()[index];
    const double y = m_layout.tapeWidth() + units(3.0);
    painter.setPen(QPen(m_colors.faint, units(0.2)));
    painter.drawLine(QPointF(piece.left(), y), QPointF(piece.right(), y));
    for (const double x : {piece.left(), piece.right()})
        painter.drawLine(QPointF(x, y - units(1.0)), QPointF(x, y + units(1.0)));
    const Millimetres margin(index == 0 ? m_layout.leadingMargin().width() : 0.0);
    const QRectF area(piece.left() - units(10.0), y + units(1.2), piece.width() + units(20.0), units(4.4));
    const QString length =
        planned.isMeasured ? lengthText(planned.length + margin) : QStringLiteral("\u2026");
    paintText(painter, area, length, m_colors.ink);
}

void StripPainter::paintText(QPainter &painter, const QRectF &area, const QString &text,
                             const QColor &color) const
{
    // Font sizes are whole pixels, so the text is drawn in device coordinates.
    const QTransform toDevice = painter.transform();
    const QRectF onDevice = toDevice.mapRect(area);
    painter.save();
    painter.resetTransform();
    QFont font = painter.font();
    font.setPixelSize(qMax(1, qRound(toDevice.m11() * units(3.2))));
    painter.setFont(font);
    painter.setPen(color);
    // The direction follows the text, not the layout direction of the window.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(onDevice, Qt::AlignCenter | Qt::TextDontClip, text);
    painter.restore();
}

} // namespace strip
} // namespace host
