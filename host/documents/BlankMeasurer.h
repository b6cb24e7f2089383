// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelExtent.h"
#include "PageThread.h"

#include <QElapsedTimer>
#include <QSizeF>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace documents {

/// Measures the blank at the ends of labels of one paper, in the background and in the order in which it is
/// asked for, and keeps what it has measured.
class BlankMeasurer : public QObject {
    Q_OBJECT

public:
    /// The paper's width and length in points. The thread is borrowed, and is the document's with that many
    /// pages.
    BlankMeasurer(PageThread &thread, QSizeF paper, int pageCount);

    /// What is measured; a page that is not is measured from the next event on, and measured() follows.
    std::optional<LabelExtent> extent(int page);
    /// Measures nothing more of what has been asked for until now.
    void cancel();
    /// Whether nothing is left of what has been asked for.
    bool isIdle() const { return m_requested.empty(); }
    /// Returns when nothing is left, and runs an event loop without the user's input meanwhile. For runs
    /// without a window.
    void finish();

Q_SIGNALS:
    /// Pages have been measured. Some 10 times a second at most, and always at the end.
    void measured();

private:
    using Measured = std::vector<std::pair<int, LabelExtent>>;

    void start();
    void store(const Measured &results);

    PageThread &m_thread;
    QSizeF m_paper;
    std::vector<std::optional<LabelExtent>> m_extents;
    /// The pages asked for; those before m_next are measured.
    std::vector<int> m_requested;
    std::size_t m_next = 0;
    /// By page, whether it has been asked for and not canceled.
    std::vector<bool> m_isRequested;
    /// A task runs, or is about to.
    bool m_isStarted = false;
    /// Set for the task that runs when its pages are canceled.
    std::shared_ptr<std::atomic<bool>> m_isCanceled = std::make_shared<std::atomic<bool>>(false);
    QElapsedTimer m_sinceSignal;
};

} // namespace documents
} // namespace host
