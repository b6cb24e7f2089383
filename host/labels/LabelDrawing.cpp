// SPDX-License-Identifier: Apache-2.0
#include "LabelDrawing.h"

#include "InkSpan.h"

#include <host/base/Length.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace host {
inline namespace labels {

namespace {

/// Sizes in PDFs are rounded, often to whole points; a page this little too large is not shrunk.
constexpr double tolerance = 0.5;
/// Pixels that one image of a label may have, and along one side what QPainter can draw.
constexpr double maxPixels = 40e6;
constexpr double maxPixelsPerSide = 32000.0;
/// As fine as the usual label printer's 203 dots an inch.
constexpr double measuringResolution = 8.0;

bool isLying(QSizeF size)
{
    return size.width() > size.height();
}

} // namespace

LabelDrawing::LabelDrawing(const LabelDocument &document, QSizeF paper)
    : m_document(document)
    , m_paper(paper)
    , m_label(inMillimetres(paper.transposed()))
{
}

bool LabelDrawing::isTurned(int page) const
{
    const QSizeF size = m_document.pageSize(page);
    // A square page or a square label needs no turning.
    return (isLying(size) && isLying(m_paper.transposed())) ||
           (isLying(size.transposed()) && isLying(m_paper));
}

QSizeF LabelDrawing::pageOnStrip(int page) const
{
    const QSizeF size = inMillimetres(m_document.pageSize(page));
    return isTurned(page) ? size : size.transposed();
}

double LabelDrawing::scale(int page) const
{
    const QSizeF size = pageOnStrip(page);
    if (size.width() <= m_label.width() + tolerance && size.height() <= m_label.height() + tolerance)
        return 1.0;
    return std::min(m_label.width() / size.width(), m_label.height() / size.height());
}

double LabelDrawing::possibleResolution(double pixelsPerMillimetre) const
{
    return std::min({pixelsPerMillimetre, maxPixelsPerSide / m_label.width(),
                     maxPixelsPerSide / m_label.height(),
                     std::sqrt(maxPixels / (m_label.width() * m_label.height()))});
}

QSize LabelDrawing::labelPixels(double pixelsPerMillimetre) const
{
    return (m_label * pixelsPerMillimetre).toSize().expandedTo({1, 1});
}

QSize LabelDrawing::pagePixels(int page, double pixelsPerMillimetre) const
{
    const QSizeF onStrip = pageOnStrip(page) * scale(page) * pixelsPerMillimetre;
    return (isTurned(page) ? onStrip : onStrip.transposed()).toSize().expandedTo({1, 1});
}

QImage LabelDrawing::draw(int page, double pixelsPerMillimetre) const
{
    const double resolution = possibleResolution(pixelsPerMillimetre);
    const QSize pixels = labelPixels(resolution);
    QImage label(pixels, QImage::Format_RGB32);
    label.fill(Qt::white);
    const QSize drawn = pagePixels(page, resolution);
    QPainter painter(&label);
    painter.translate(QPointF(pixels.width(), pixels.height()) / 2.0);
    if (!isTurned(page))
        painter.rotate(-90.0);
    painter.drawImage(QPointF(-drawn.width() / 2.0, -drawn.height() / 2.0),
                      m_document.renderTransparent(page, drawn));
    return label;
}

LabelExtent LabelDrawing::measure(int page) const
{
    const double resolution = possibleResolution(measuringResolution);
    const QSize label = labelPixels(resolution);
    const QSize drawn = pagePixels(page, resolution);
    const bool turned = isTurned(page);
    // The label's place in the page's pixels: page and label have one centre.
    const QSize labelAsRead = turned ? label : label.transposed();
    const QPoint corner((drawn.width() - labelAsRead.width()) / 2,
                        (drawn.height() - labelAsRead.height()) / 2);
    const QRect area(corner, labelAsRead);
    const QImage image = m_document.renderTransparent(page, drawn);
    const std::optional<InkSpan> ink = turned ? inkedColumns(image, area) : inkedRows(image, area);
    if (!ink)
        return {.length = Millimetres(m_label.width()), .whollyBlank = true};
    const int before = ink->first - (turned ? area.left() : area.top());
    const int after = label.width() - before - (ink->end - ink->first);
    const Millimetres pixel(m_label.width() / label.width());
    return {Millimetres(m_label.width()), before * pixel, after * pixel, false};
}

} // namespace labels
} // namespace host
