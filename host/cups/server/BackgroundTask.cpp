// SPDX-License-Identifier: Apache-2.0
#include "BackgroundTask.h"

#include <condition_variable>
#include <mutex>

namespace host {
inline namespace cups {
inline namespace server {

BackgroundTask::BackgroundTask(const BackgroundPool &pool)
    : m_end(pool.endToken())
    , m_endCallback(m_end, [this] { cancel(); })
{
}

BackgroundTask::Cancellation BackgroundTask::cancel()
{
    const bool hasStarted = m_isStartDecided.test_and_set();
    std::atomic_ref(m_cancelFlag).store(1, std::memory_order_relaxed);
    m_stop.request_stop();
    return hasStarted ? Cancellation::Requested : Cancellation::BeforeStart;
}

void BackgroundTask::run(const std::function<void(BackgroundTask &)> &work)
{
    if (m_isStartDecided.test_and_set())
        return;
    m_deliveries.start();
    work(*this);
    m_deliveries.finish();
}

void BackgroundTask::deliver(Delivery call) const
{
    m_deliveries.addResult(std::move(call));
}

void BackgroundTask::pause(std::chrono::milliseconds time) const
{
    std::mutex mutex;
    std::condition_variable_any canceled;
    std::unique_lock lock(mutex);
    canceled.wait_for(lock, stopToken(), time, [] { return false; });
}

} // namespace server
} // namespace cups
} // namespace host
