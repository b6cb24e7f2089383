// SPDX-License-Identifier: Apache-2.0
#include "PageCheck.h"

#include <QDeadlineTimer>

#include <chrono>

namespace host {

namespace {

constexpr std::chrono::milliseconds slice{100};

} // namespace

PageCheck::PageCheck(const LabelDocument &document, PageThread &thread)
    : m_document(document)
    , m_thread(thread)
{
}

void PageCheck::start()
{
    if (!std::exchange(m_isStarted, true))
        store({});
}

void PageCheck::readSizes()
{
    const auto read = [this, first = m_next, end = m_document.pageCount()](
                          const LabelDocument &document, const PageThread::ShouldPause &shouldPause) {
        const QDeadlineTimer deadline(slice);
        std::vector<QSizeF> sizes;
        for (int page = first; page < end; ++page) {
            sizes.push_back(document.statedPageSize(page));
            if (deadline.hasExpired() || shouldPause())
                break;
        }
        return [this, sizes = std::move(sizes)] { store(sizes); };
    };
    m_thread.run(PageThread::Urgency::Checked, this, read);
}

void PageCheck::store(const std::vector<QSizeF> &sizes)
{
    for (const QSizeF &size : sizes)
        m_document.setStatedPageSize(m_next++, size);
    while (!isDone() && m_document.isPageSizeKnown(m_next))
        ++m_next;
    if (isDone())
        Q_EMIT done();
    else
        readSizes();
}

} // namespace host
