// SPDX-License-Identifier: Apache-2.0
#include "Background.h"

#include <QFutureWatcher>

namespace host {
inline namespace cups {
inline namespace server {

Background::Background(BackgroundPool &pool)
    : m_pool(pool)
{
}

Background::~Background()
{
    for (const std::weak_ptr<BackgroundTask> &weak : m_tasks) {
        if (const std::shared_ptr<BackgroundTask> task = weak.lock())
            task->cancel();
    }
}

std::shared_ptr<BackgroundTask> Background::start(std::function<void(BackgroundTask &)> work)
{
    std::erase_if(m_tasks, [](const std::weak_ptr<BackgroundTask> &task) { return task.expired(); });
    auto task = std::make_shared<BackgroundTask>(m_pool);
    m_tasks.push_back(task);
    // Not QFuture::then() with a context: Qt 6.4 does not check safely whether the context still exists.
    using Watcher = QFutureWatcher<BackgroundTask::Delivery>;
    auto *const watcher = new Watcher(&m_receiver);
    QObject::connect(watcher, &Watcher::finished, watcher, &QObject::deleteLater);
    // Queued, because the call may destroy this object and the watcher.
    QObject::connect(
        watcher, &Watcher::resultReadyAt, &m_receiver,
        [deliveries = task->deliveries()](int index) { deliveries.resultAt(index)(); }, Qt::QueuedConnection);
    watcher->setFuture(task->deliveries());
    m_pool.start([task, run = std::move(work)] { task->run(run); });
    return task;
}

} // namespace server
} // namespace cups
} // namespace host
