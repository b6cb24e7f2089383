// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <stop_token>
#include <thread>

namespace host {
inline namespace cups {
inline namespace server {

/// The threads of background tasks, named "kv-background" for debuggers. Work beyond the max number of
/// threads waits, and starts in the order in which it was added. A thread ends when no work waits, which
/// frees what libcups keeps for each thread.
///
/// The class is no QThreadPool, which reports no error when the system creates no thread and then never runs
/// the work.
class BackgroundPool {
public:
    /// More than one window needs. A silent server holds a thread until its timeout, and requests to other
    /// servers must not wait for that.
    static constexpr std::size_t usualMaxThreads = 16;

    /// Starts no thread. maxThreads is at least 1.
    explicit BackgroundPool(std::size_t maxThreads = usualMaxThreads);
    /// Calls end().
    ~BackgroundPool();
    BackgroundPool(const BackgroundPool &) = delete;
    BackgroundPool &operator=(const BackgroundPool &) = delete;

    /// Returns the pool of the program. It ends when the application object is destroyed, so that no thread
    /// accesses what is destroyed after main() has returned.
    static BackgroundPool &instance();

    /// Runs the work on a thread, now or after earlier work. After end(), discards the work. Thread-safe.
    /// Throws std::system_error if the system creates no thread.
    void start(std::function<void()> work);

    /// Returns the token that requests all work to stop when the pool ends. Thread-safe.
    std::stop_token endToken() const { return m_end.get_token(); }
    /// Requests all work to stop, discards the work that has not started, and waits for the rest.
    void end();

private:
    using Threads = std::list<std::thread>;

    void run(Threads::iterator self);

    const std::size_t m_maxThreads;
    std::stop_source m_end;
    std::mutex m_mutex;
    std::condition_variable m_threadEnded;
    std::deque<std::function<void()>> m_waiting;
    Threads m_running;
    /// Threads that only have to be joined.
    Threads m_ended;
};

} // namespace server
} // namespace cups
} // namespace host
