// SPDX-License-Identifier: Apache-2.0
#include "LabelDrawing.h"

#include "InkSpan.h"

#include <host/base/Length.h>

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace host {
inline namespace labels {

namespace {

struct LabelDrawingText {
    Q_DECLARE_TR_FUNCTIONS(host::labels::LabelDrawing)
};

/// Pixels that one image of a label may have, and along one side what QPainter can draw.
constexpr double maxPixels = 40e6;
constexpr double maxPixelsPerSide = 32000.0;
/// As fine as the usual label printer's 203 dots an inch.
constexpr double measuringResolution = 8.0;

/// How strongly the part of a page that is not printed is drawn.
constexpr double faint = 0.25;

/// Returns the size of the image of the page as it is read; the label shows it turned.
QSize imageSize(const PagePlacement &placement, const QRectF &onStrip)
{
    // On the strip the label lies on its side.
    const QSizeF size = placement.isOnSide() ? onStrip.size() : onStrip.size().transposed();
    return size.toSize().expandedTo({1, 1});
}

} // namespace

LabelDrawing::LabelDrawing(const LabelDocument &document, const PageLayout &layout)
    : m_document(document)
    , m_layout(layout)
    , m_label(inMillimetres(layout.paper.transposed()))
{
}

PagePlacement LabelDrawing::place(int page) const
{
    return m_layout.place(m_document.pageSize(page));
}

double LabelDrawing::possibleResolution(const PagePlacement &placement, double pixelsPerMillimetre) const
{
    // A page that is not shrunk may be larger than the label.
    const QSizeF room = m_label.expandedTo(inMillimetres(placement.area.size().transposed()));
    return std::min({pixelsPerMillimetre, maxPixelsPerSide / room.width(), maxPixelsPerSide / room.height(),
                     std::sqrt(maxPixels / (room.width() * room.height()))});
}

QSize LabelDrawing::labelPixels(double pixelsPerMillimetre) const
{
    return (m_label * pixelsPerMillimetre).toSize().expandedTo({1, 1});
}

QRectF LabelDrawing::onStrip(const QRectF &onLabel, double pixelsPerMillimetre) const
{
    const double pixels = pixelsPerMillimetre * Millimetres(Points(1.0)).number();
    return {onLabel.top() * pixels, (m_layout.paper.width() - onLabel.right()) * pixels,
            onLabel.height() * pixels, onLabel.width() * pixels};
}

QImage LabelDrawing::draw(int page, double pixelsPerMillimetre) const
{
    const PagePlacement placement = place(page);
    const double resolution = possibleResolution(placement, pixelsPerMillimetre);
    QImage label(labelPixels(resolution), QImage::Format_RGB32);
    label.fill(Qt::white);
    const QRectF area = onStrip(placement.area, resolution);
    const QImage image = m_document.renderTransparent(page, imageSize(placement, area));
    QPainter painter(&label);
    if (image.isNull() && !m_document.drawingFault(page).isEmpty()) {
        drawPlaceholder(painter, area, page);
        return label;
    }
    const auto paint = [&] {
        painter.save();
        // The image has the size of the area: it is not scaled.
        painter.translate(area.center());
        painter.rotate(90.0 * (placement.quarterTurns - 1));
        painter.drawImage(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
        painter.restore();
    };
    const QRectF printable = onStrip(m_layout.printableArea(), resolution);
    if (!printable.contains(area)) {
        painter.setOpacity(faint);
        paint();
        painter.setOpacity(1.0);
        painter.fillRect(printable, Qt::white);
        painter.setClipRect(printable);
    }
    paint();
    return label;
}

void LabelDrawing::drawPlaceholder(QPainter &painter, const QRectF &area, int page)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(area, QColor(0xEE, 0xEE, 0xEE));
    painter.setPen(QColor(0xCC, 0xCC, 0xCC));
    painter.drawLine(area.topLeft(), area.bottomRight());
    painter.drawLine(area.bottomLeft(), area.topRight());
    // The text fills most of the width of a page, and at most a quarter of its height.
    const QString text = LabelDrawingText::tr("Page %1 cannot be drawn").arg(page + 1);
    constexpr double partOfHeight = 0.25;
    constexpr double partOfWidth = 0.9;
    QFont font;
    font.setPixelSize(100);
    const double width = QFontMetricsF(font).horizontalAdvance(text) / font.pixelSize();
    font.setPixelSize(std::max(
        1, static_cast<int>(std::min(partOfHeight * area.height(), partOfWidth * area.width() / width))));
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(area, Qt::AlignCenter, text);
}

LabelExtent LabelDrawing::measure(int page) const
{
    const PagePlacement placement = place(page);
    const double resolution = possibleResolution(placement, measuringResolution);
    const QRectF area = onStrip(placement.area, resolution);
    const QImage image = m_document.renderTransparent(page, imageSize(placement, area));
    if (QString fault = m_document.drawingFault(page); image.isNull() && !fault.isEmpty())
        return {.length = Millimetres(m_label.width()), .drawingFault = fault};
    // The printable part of the page in the pixels of its image.
    const QTransform toImage = QTransform::fromTranslate(-area.center().x(), -area.center().y()) *
                               QTransform().rotate(-90.0 * (placement.quarterTurns - 1)) *
                               QTransform::fromTranslate(image.width() / 2.0, image.height() / 2.0);
    const QRectF printable = onStrip(m_layout.printableArea(), resolution);
    const QRect part = toImage.mapRect(printable).toRect() & image.rect();
    const std::optional<InkSpan> ink =
        placement.isOnSide() ? inkedColumns(image, part) : inkedRows(image, part);
    const bool isCutOff = hasInkOutside(image, part);
    if (!ink)
        return {.length = Millimetres(m_label.width()), .whollyBlank = true, .isCutOff = isCutOff};
    const QRectF inked = placement.isOnSide() ? QRectF(ink->first, 0.0, ink->end - ink->first, image.height())
                                              : QRectF(0.0, ink->first, image.width(), ink->end - ink->first);
    const QRectF span = toImage.inverted().mapRect(inked);
    const Millimetres length(m_label.width());
    const Millimetres pixel(1.0 / resolution);
    return {length, std::max(Millimetres(), span.left() * pixel),
            std::max(Millimetres(), length - span.right() * pixel), false, isCutOff};
}

bool LabelDrawing::hasInkOutside(const QImage &image, const QRect &part)
{
    // Smoothed edges are up to a pixel further out.
    const QRect inside = part.adjusted(-1, -1, 1, 1);
    const std::optional<InkSpan> rows = inkedRows(image, image.rect());
    if (!rows || inside.contains(image.rect()))
        return false;
    const std::optional<InkSpan> columns = inkedColumns(image, image.rect());
    return rows->first < inside.top() || rows->end > inside.bottom() + 1 || columns->first < inside.left() ||
           columns->end > inside.right() + 1;
}

} // namespace labels
} // namespace host
