// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelExtent.h"
#include "PageThread.h"

#include <host/layout/PageLayout.h>

#include <QElapsedTimer>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace labels {

/// Measures the blank at the ends of labels on one paper, in the background and in the order of the
/// requests, and caches the results.
class BlankMeasurer : public QObject {
    Q_OBJECT

public:
    /// The thread is borrowed; its document has this number of
    /// pages.
    BlankMeasurer(PageThread &thread, const PageLayout &layout, int pageCount);

    /// Returns the extent of the page; absent if it is not measured yet. Then the page is measured after the
    /// next event, and measured() is emitted.
    std::optional<LabelExtent> extent(int page);
    /// Cancels all requests.
    void cancel();
    /// Returns whether all requested pages are measured.
    bool isIdle() const { return m_requested.empty(); }
    /// Waits until all requested pages are measured, in an event loop without user input. For runs without a
    /// window.
    void finish();

Q_SIGNALS:
    /// Emitted when pages have been measured, at most about 10 times a second, and at the end.
    void measured();

private:
    using Measured = std::vector<std::pair<int, LabelExtent>>;

    void start();
    void store(const Measured &results);

    PageThread &m_thread;
    PageLayout m_layout;
    std::vector<std::optional<LabelExtent>> m_extents;
    /// The requested pages; those before m_next are measured.
    std::vector<int> m_requested;
    std::size_t m_next = 0;
    /// By page, whether it is requested and not canceled.
    std::vector<bool> m_isRequested;
    /// Whether a task is running or scheduled.
    bool m_isStarted = false;
    /// Tells the running task that its pages are canceled.
    std::shared_ptr<std::atomic<bool>> m_isCanceled = std::make_shared<std::atomic<bool>>(false);
    QElapsedTimer m_sinceSignal;
};

} // namespace labels
} // namespace host
