// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundPool.h"

#include <QFuture>
#include <QPromise>

#include <atomic>
#include <chrono>
#include <functional>
#include <stop_token>

namespace host {
inline namespace cups {
inline namespace server {

/// Work that may wait for a network, as seen by the thread that runs it and by those that cancel it.
/// Background starts it.
class BackgroundTask {
public:
    /// A call to be made on the main thread.
    using Delivery = std::function<void()>;

    /// Creates a task that its own thread runs, without Background: its deliveries are discarded. Like all
    /// tasks, it is canceled when the pool ends.
    explicit BackgroundTask(const BackgroundPool &pool = BackgroundPool::instance());
    BackgroundTask(const BackgroundTask &) = delete;
    BackgroundTask &operator=(const BackgroundTask &) = delete;

    /// Returns whether the task has been canceled. Long-running work calls this often.
    bool isCanceled() const { return m_stop.stop_requested(); }
    /// Returns whether the task is canceled because the program ends: even what must not be canceled halfway
    /// is interrupted then.
    bool isProgramEnding() const { return m_end.stop_requested(); }
    /// Returns the token whose stop is the cancellation, for waiting on a std::condition_variable_any. Valid
    /// without the task.
    std::stop_token stopToken() const { return m_stop.get_token(); }
    /// Returns the same as a variable that libcups watches. Valid for the lifetime of the task.
    int *cancelFlag() { return &m_cancelFlag; }
    /// Queues the call on the main thread. Drops it if the receiver is destroyed before the call. A canceled
    /// task can still deliver.
    void deliver(Delivery call) const;
    /// Sleeps for the given time, or until the task is canceled.
    void pause(std::chrono::milliseconds time) const;

    /// What cancel() has reached.
    enum class Cancellation {
        Requested,   ///< the work runs and ends soon, or it has ended
        BeforeStart, ///< the work never runs, and delivers nothing
    };
    /// Cancels the task. Thread-safe.
    Cancellation cancel();

private:
    friend class Background;

    /// Runs the work, unless the task has been canceled.
    void run(const std::function<void(BackgroundTask &)> &work);
    QFuture<Delivery> deliveries() const { return m_deliveries.future(); }

    std::stop_source m_stop;
    int m_cancelFlag = 0;
    /// Set by the first of run() and cancel().
    std::atomic_flag m_isStartDecided;
    mutable QPromise<Delivery> m_deliveries;
    std::stop_token m_end;
    /// Destroyed first, since it uses the other members.
    std::stop_callback<std::function<void()>> m_endCallback;
};

} // namespace server
} // namespace cups
} // namespace host
