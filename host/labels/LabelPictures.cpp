// SPDX-License-Identifier: Apache-2.0
#include "LabelPictures.h"

#include "LabelDrawing.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>

namespace host {
inline namespace labels {

namespace {

/// The interval at which pictures are delivered to the window.
constexpr std::chrono::milliseconds drawingSlice{30};
constexpr qint64 maxBytes = 128LL * 1024 * 1024;

} // namespace

LabelPictures::LabelPictures(const LabelDocument &document, PageThread &thread, const PageLayout &layout)
    : m_document(document)
    , m_thread(thread)
    , m_layout(layout)
{
}

bool LabelPictures::isDrawn(int page) const
{
    const auto found = m_pictures.constFind(page);
    return found != m_pictures.constEnd() && found->resolution == m_resolution;
}

const QImage *LabelPictures::picture(int page) const
{
    const auto found = m_pictures.constFind(page);
    return found == m_pictures.constEnd() ? nullptr : &found->image;
}

void LabelPictures::show(std::vector<int> pages, double pixelsPerMillimetre)
{
    m_shown = std::move(pages);
    m_resolution = pixelsPerMillimetre;
    m_missing.clear();
    for (const int page : m_shown) {
        // Copies of a page are adjacent.
        if (!isDrawn(page) && std::ranges::find(m_missing, page) == m_missing.end())
            m_missing.push_back(page);
    }
    // Pages are usually requested during painting, which another thread would slow down.
    if (!m_missing.empty())
        QMetaObject::invokeMethod(this, &LabelPictures::start, Qt::QueuedConnection);
}

void LabelPictures::start()
{
    if (m_isDrawing || m_missing.empty())
        return;
    m_isDrawing = true;
    const auto draw = [this, pages = m_missing, layout = m_layout, resolution = m_resolution](
                          const LabelDocument &document, const PageThread::ShouldPause &shouldPause) {
        const LabelDrawing drawing(document, layout);
        const QDeadlineTimer end(drawingSlice);
        std::vector<Drawn> results;
        for (const int page : pages) {
            results.push_back({page, drawing.draw(page, resolution), document.statedPageSize(page)});
            if (end.hasExpired() || shouldPause())
                break;
        }
        return [this, results = std::move(results), resolution] { store(results, resolution); };
    };
    m_thread.run(PageThread::Urgency::Shown, this, draw);
}

void LabelPictures::store(const std::vector<Drawn> &results, double resolution)
{
    m_isDrawing = false;
    for (const Drawn &drawn : results) {
        m_document.setStatedPageSize(drawn.page, drawn.statedPageSize);
        Picture &picture = m_pictures[drawn.page];
        m_bytes += drawn.image.sizeInBytes() - picture.image.sizeInBytes();
        picture = {drawn.image, resolution};
    }
    std::erase_if(m_missing, [this](int page) { return isDrawn(page); });
    if (m_bytes > maxBytes)
        dropUnseen();
    start();
    Q_EMIT drawn();
}

void LabelPictures::dropUnseen()
{
    QHash<int, Picture> seen;
    m_bytes = 0;
    for (const int page : m_shown) {
        if (const auto found = m_pictures.constFind(page);
            found != m_pictures.constEnd() && !seen.contains(page)) {
            seen.insert(page, *found);
            m_bytes += found->image.sizeInBytes();
        }
    }
    m_pictures = std::move(seen);
}

} // namespace labels
} // namespace host
