// SPDX-License-Identifier: Apache-2.0
#include "BackgroundPool.h"

#include <QCoreApplication>

#include <pthread.h>

namespace host {
inline namespace cups {
inline namespace server {

namespace {

void join(std::list<std::thread> &threads)
{
    for (std::thread &thread : threads)
        thread.join();
}

class ProgramPool : public BackgroundPool {
public:
    ProgramPool()
    {
        qAddPostRoutine([] { instance().end(); });
    }
};

} // namespace

BackgroundPool::BackgroundPool(std::size_t maxThreads)
    : m_maxThreads(maxThreads)
{
}

BackgroundPool::~BackgroundPool()
{
    end();
}

BackgroundPool &BackgroundPool::instance()
{
    static ProgramPool pool;
    return pool;
}

void BackgroundPool::start(std::function<void()> work)
{
    Threads ended;
    {
        const std::scoped_lock lock(m_mutex);
        if (m_end.stop_requested())
            return;
        if (m_running.size() < m_maxThreads) {
            Threads created(1);
            // The thread waits for the lock before it uses its place in the list.
            created.front() = std::thread([this, self = created.begin()] { run(self); });
            pthread_setname_np(created.front().native_handle(), "kv-background");
            m_running.splice(m_running.end(), created);
        }
        m_waiting.push_back(std::move(work));
        // Last, because a thread that is not joined ends the program if an exception destroys it.
        ended.swap(m_ended);
    }
    join(ended);
}

void BackgroundPool::run(Threads::iterator self)
{
    std::unique_lock lock(m_mutex);
    while (!m_waiting.empty()) {
        std::function<void()> work = std::move(m_waiting.front());
        m_waiting.pop_front();
        lock.unlock();
        work();
        // What the work holds is destroyed before the lock is taken: that may start other work.
        work = nullptr;
        lock.lock();
    }
    m_ended.splice(m_ended.end(), m_running, self);
    m_threadEnded.notify_all();
}

void BackgroundPool::end()
{
    std::deque<std::function<void()>> discarded;
    Threads ended;
    m_end.request_stop();
    {
        std::unique_lock lock(m_mutex);
        discarded.swap(m_waiting);
        m_threadEnded.wait(lock, [this] { return m_running.empty(); });
        ended.swap(m_ended);
    }
    join(ended);
}

} // namespace server
} // namespace cups
} // namespace host
