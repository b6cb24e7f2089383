// SPDX-License-Identifier: Apache-2.0
#include "Background.h"

#include <atomic>
#include <thread>

#include <pthread.h>

namespace host {
inline namespace cups {
inline namespace server {

bool BackgroundTask::isCanceled() const
{
    return std::atomic_ref(const_cast<int &>(m_canceled)).load(std::memory_order_relaxed) != 0;
}

void BackgroundTask::cancel()
{
    std::atomic_ref(m_canceled).store(1, std::memory_order_relaxed);
}

void BackgroundTask::deliver(std::function<void()> call) const
{
    // The receiver cannot be destroyed while the lock is held; queued calls are discarded with it.
    const std::scoped_lock lock(m_mailbox->mutex);
    if (m_mailbox->receiver)
        QMetaObject::invokeMethod(m_mailbox->receiver, std::move(call), Qt::QueuedConnection);
}

void BackgroundTask::pause(std::chrono::milliseconds time) const
{
    constexpr std::chrono::milliseconds step{50};
    for (; time.count() > 0 && !isCanceled(); time -= step)
        std::this_thread::sleep_for(std::min(step, time));
}

namespace {

std::atomic<bool> anythingStarted = false;

} // namespace

bool Background::wasUsed()
{
    return anythingStarted;
}

Background::Background()
    : m_mailbox(std::make_shared<BackgroundTask::Mailbox>())
{
    m_mailbox->receiver = &m_receiver;
}

Background::~Background()
{
    for (const std::weak_ptr<BackgroundTask> &weak : m_tasks) {
        if (const std::shared_ptr<BackgroundTask> task = weak.lock())
            task->cancel();
    }
    const std::scoped_lock lock(m_mailbox->mutex);
    m_mailbox->receiver = nullptr;
}

std::shared_ptr<BackgroundTask> Background::start(std::function<void(BackgroundTask &)> work)
{
    std::erase_if(m_tasks, [](const std::weak_ptr<BackgroundTask> &task) { return task.expired(); });
    std::shared_ptr<BackgroundTask> task(new BackgroundTask(m_mailbox));
    m_tasks.push_back(task);
    detach([task, run = std::move(work)] { run(*task); });
    return task;
}

void Background::detach(std::function<void()> work)
{
    anythingStarted = true;
    std::thread thread(std::move(work));
    pthread_setname_np(thread.native_handle(), "kv-background");
    thread.detach();
}

} // namespace server
} // namespace cups
} // namespace host
