// SPDX-License-Identifier: Apache-2.0
#include "LabelRenderer.h"

#include "Units.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

/// Sizes in PDFs are rounded, often to whole points; a page this little too large is not shrunk.
constexpr double tolerance = 0.5;
/// Pixels that one image of a label may have, and along one side what QPainter can draw.
constexpr double mostPixels = 40e6;
constexpr double mostPixelsASide = 32000.0;
/// The images kept, in kilobytes.
constexpr int cacheSize = 128 * 1024;
/// As fine as the usual label printer's 203 dots an inch.
constexpr double measuringResolution = 8.0;

bool isLying(QSizeF size)
{
    return size.width() > size.height();
}

bool hasInk(const QImage &image, int column)
{
    // Lighter grey comes out white on a printer that has only black.
    constexpr int white = 250;
    for (int row = 0; row < image.height(); ++row) {
        const QRgb *const line = reinterpret_cast<const QRgb *>(image.constScanLine(row));
        if (qGray(line[column]) < white)
            return true;
    }
    return false;
}

} // namespace

LabelRenderer::LabelRenderer(const LabelDocument &document, QSizeF paper)
    : m_document(document)
    , m_paper(paper)
    , m_label(paper.transposed() * millimetresPerPoint)
    , m_images(cacheSize)
{
}

bool LabelRenderer::isTurned(int page) const
{
    const QSizeF size = m_document.pageSize(page);
    // A square page or a square label needs no turning.
    return (isLying(size) && isLying(m_paper.transposed())) ||
           (isLying(size.transposed()) && isLying(m_paper));
}

QSizeF LabelRenderer::pageOnStrip(int page) const
{
    const QSizeF size = m_document.pageSize(page) * millimetresPerPoint;
    return isTurned(page) ? size : size.transposed();
}

double LabelRenderer::scale(int page) const
{
    const QSizeF size = pageOnStrip(page);
    if (size.width() <= m_label.width() + tolerance && size.height() <= m_label.height() + tolerance)
        return 1.0;
    return std::min(m_label.width() / size.width(), m_label.height() / size.height());
}

LabelExtent LabelRenderer::extent(int page, MeasureBlank blank) const
{
    if (blank == MeasureBlank::No)
        return {m_label.width(), 0.0, 0.0, false};
    if (const auto found = m_measured.constFind(page); found != m_measured.constEnd())
        return *found;
    const QImage image = draw(page, measuringResolution);
    int first = 0;
    while (first < image.width() && !hasInk(image, first))
        ++first;
    int end = image.width();
    while (end > first && !hasInk(image, end - 1))
        --end;
    const double millimetres = m_label.width() / image.width();
    LabelExtent extent{m_label.width(), first * millimetres, (image.width() - end) * millimetres,
                       first == end};
    if (extent.whollyBlank)
        extent.leadingBlank = extent.trailingBlank = 0.0;
    m_measured.insert(page, extent);
    return extent;
}

QImage LabelRenderer::render(int page, double pixelsPerMillimetre) const
{
    const QPair<int, int> key(page, static_cast<int>(std::lround(pixelsPerMillimetre * 100.0)));
    if (const QImage *const kept = m_images.object(key))
        return *kept;
    QImage image = draw(page, pixelsPerMillimetre);
    m_images.insert(key, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024) + 1);
    return image;
}

QImage LabelRenderer::draw(int page, double pixelsPerMillimetre) const
{
    const double fitting =
        std::min({pixelsPerMillimetre, mostPixelsASide / m_label.width(), mostPixelsASide / m_label.height(),
                  std::sqrt(mostPixels / (m_label.width() * m_label.height()))});
    const QSize pixels = (m_label * fitting).toSize().expandedTo({1, 1});
    QImage label(pixels, QImage::Format_RGB32);
    label.fill(Qt::white);
    const QSizeF onStrip = pageOnStrip(page) * scale(page) * fitting;
    const bool turned = isTurned(page);
    const QSize drawn = (turned ? onStrip : onStrip.transposed()).toSize().expandedTo({1, 1});
    QPainter painter(&label);
    painter.translate(QPointF(pixels.width(), pixels.height()) / 2.0);
    if (!turned)
        painter.rotate(-90.0);
    painter.drawImage(QPointF(-drawn.width() / 2.0, -drawn.height() / 2.0), m_document.render(page, drawn));
    return label;
}

} // namespace host
