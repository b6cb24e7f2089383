// SPDX-License-Identifier: Apache-2.0
#include "PageCheck.h"

namespace host {
inline namespace labels {

PageCheck::PageCheck(const LabelDocument &document, PageThread &thread)
    : m_document(document)
    , m_thread(thread)
{
}

void PageCheck::start()
{
    if (!std::exchange(m_isStarted, true))
        goOn();
}

void PageCheck::hurry()
{
    const bool isHurriedAlready = m_urgency == PageThread::Urgency::Awaited;
    m_urgency = PageThread::Urgency::Awaited;
    if (m_isStarted && !isDone() && !isHurriedAlready)
        readSizes();
}

void PageCheck::goOn()
{
    while (!isDone() && m_document.isPageSizeKnown(m_next))
        ++m_next;
    if (isDone())
        Q_EMIT done();
    else
        readSizes();
}

void PageCheck::readSizes()
{
    const auto read = [this, urgency = m_urgency, first = m_next, end = m_document.pageCount()](
                          const LabelDocument &document, const PageThread::ShouldPause &shouldPause) {
        std::vector<QSizeF> sizes;
        for (int page = first; page < end; ++page) {
            sizes.push_back(document.statedPageSize(page));
            if (shouldPause())
                break;
        }
        return [this, urgency, first, sizes = std::move(sizes)] {
            store(first, sizes);
            // The task with the lower urgency is still delivered when another one has taken its place.
            if (urgency == m_urgency)
                goOn();
        };
    };
    m_thread.run(m_urgency, this, read);
}

void PageCheck::store(int first, const std::vector<QSizeF> &sizes)
{
    for (int page = first; const QSizeF &size : sizes)
        m_document.setStatedPageSize(page++, size);
}

} // namespace labels
} // namespace host
