// SPDX-License-Identifier: Apache-2.0
#include "LabelRenderer.h"

#include "BlankMeasurer.h"
#include "LabelPictures.h"

#include <cmath>

namespace host {
inline namespace labels {

namespace {

/// The images kept, in kilobytes.
constexpr int cacheSize = 128 * 1024;

} // namespace

LabelRenderer::LabelRenderer(const LabelDocument &document, const PageLayout &layout)
    : m_document(document)
    , m_drawing(document, layout)
    , m_images(cacheSize)
{
}

LabelRenderer::LabelRenderer(const LabelDocument &document, const PageLayout &layout, PageThread &thread)
    : LabelRenderer(document, layout)
{
    m_thread = &thread;
    m_measurer = std::make_unique<BlankMeasurer>(thread, layout, document.pageCount());
}

LabelRenderer::~LabelRenderer() = default;

bool LabelRenderer::shrinks(int page) const
{
    return (!m_thread || m_document.isPageSizeKnown(page)) && m_drawing.place(page).scale < 1.0;
}

LabelExtent LabelRenderer::extent(int page, MeasureBlank blank) const
{
    LabelExtent unmeasured{.length = Millimetres(labelSize().width()), .isMeasured = false};
    if (blank == MeasureBlank::No)
        return unmeasured;
    if (m_measurer) {
        LabelExtent extent = m_measurer->extent(page).value_or(unmeasured);
        if (!extent.drawingFault.isEmpty())
            m_document.setDrawingFault(page, extent.drawingFault);
        return extent;
    }
    const auto found = m_measured.constFind(page);
    return found != m_measured.constEnd() ? *found : *m_measured.insert(page, m_drawing.measure(page));
}

QImage LabelRenderer::render(int page, double pixelsPerMillimetre) const
{
    const QPair<int, int> key(page, static_cast<int>(std::lround(pixelsPerMillimetre * 100.0)));
    if (const QImage *const kept = m_images.object(key))
        return *kept;
    QImage image = m_drawing.draw(page, pixelsPerMillimetre);
    m_images.insert(key, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024) + 1);
    return image;
}

std::unique_ptr<LabelPictures> LabelRenderer::makePictures() const
{
    return m_thread ? std::make_unique<LabelPictures>(m_document, *m_thread, layout()) : nullptr;
}

} // namespace labels
} // namespace host
