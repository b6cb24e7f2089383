// SPDX-License-Identifier: Apache-2.0
#include "BlankMeasurer.h"

#include "LabelDrawing.h"

#include <QDeadlineTimer>
#include <QEventLoop>

#include <algorithm>
#include <chrono>

namespace host {
inline namespace labels {

namespace {

/// How often results are delivered. Each time, everything that shows lengths is laid out again.
constexpr std::chrono::milliseconds interval{100};
/// The pages of one task; more than it measures in the interval.
constexpr std::size_t maxPagesPerTask = 2000;

} // namespace

BlankMeasurer::BlankMeasurer(PageThread &thread, const PageLayout &layout, int pageCount)
    : m_thread(thread)
    , m_layout(layout)
    , m_extents(static_cast<std::size_t>(pageCount))
    , m_isRequested(static_cast<std::size_t>(pageCount))
{
}

std::optional<LabelExtent> BlankMeasurer::extent(int page)
{
    const auto index = static_cast<std::size_t>(page);
    if (m_extents[index] || m_isRequested[index])
        return m_extents[index];
    m_isRequested[index] = true;
    m_requested.push_back(page);
    // Usually many pages are requested in succession.
    if (!std::exchange(m_isStarted, true))
        QMetaObject::invokeMethod(this, &BlankMeasurer::start, Qt::QueuedConnection);
    return std::nullopt;
}

void BlankMeasurer::cancel()
{
    for (const int page : m_requested)
        m_isRequested[static_cast<std::size_t>(page)] = false;
    m_requested.clear();
    m_next = 0;
    *m_isCanceled = true;
    m_isCanceled = std::make_shared<std::atomic<bool>>(false);
}

void BlankMeasurer::finish()
{
    if (isIdle())
        return;
    QEventLoop loop;
    connect(this, &BlankMeasurer::measured, &loop, [&] {
        if (isIdle())
            loop.quit();
    });
    // An event may destroy the measurer, together with the paper for which it measures.
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void BlankMeasurer::start()
{
    // Canceled before it began.
    if (m_requested.empty()) {
        m_isStarted = false;
        return;
    }
    if (!m_sinceSignal.isValid())
        m_sinceSignal.start();
    const std::size_t count = std::min(m_requested.size() - m_next, maxPagesPerTask);
    const auto first = m_requested.begin() + static_cast<std::ptrdiff_t>(m_next);
    const auto measure = [this, pages = std::vector<int>(first, first + static_cast<std::ptrdiff_t>(count)),
                          layout = m_layout, isCanceled = m_isCanceled](
                             const LabelDocument &document, const PageThread::ShouldPause &shouldPause) {
        const LabelDrawing drawing(document, layout);
        const QDeadlineTimer end(interval);
        Measured results;
        for (const int page : pages) {
            if (*isCanceled)
                break;
            results.emplace_back(page, drawing.measure(page));
            if (end.hasExpired() || shouldPause())
                break;
        }
        return [this, results = std::move(results)] { store(results); };
    };
    m_thread.run(PageThread::Urgency::Measured, this, measure);
}

void BlankMeasurer::store(const Measured &results)
{
    for (const auto &[page, extent] : results) {
        const auto index = static_cast<std::size_t>(page);
        m_extents[index] = extent;
        // Except for a page that was canceled.
        if (m_next < m_requested.size() && m_requested[m_next] == page)
            ++m_next;
    }
    if (m_next == m_requested.size()) {
        m_requested.clear();
        m_next = 0;
    }
    m_isStarted = !m_requested.empty();
    if (m_isStarted)
        start();
    if (isIdle() || m_sinceSignal.hasExpired(interval.count())) {
        m_sinceSignal.restart();
        Q_EMIT measured();
    }
}

} // namespace labels
} // namespace host
