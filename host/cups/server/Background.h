// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace host {
inline namespace cups {
inline namespace server {

/// A task on its own thread, as seen by that thread.
class BackgroundTask {
public:
    /// Creates a task without a receiver: its deliveries are discarded.
    BackgroundTask()
        : m_mailbox(std::make_shared<Mailbox>())
    {
    }

    /// Returns whether the task has been canceled. Long-running work calls this often.
    bool isCanceled() const;
    /// Returns the same flag as a variable that libcups watches. Valid for the lifetime of the task.
    int *cancelFlag() { return &m_canceled; }
    /// Queues the call on the main thread. Drops it if the receiver is destroyed before the call.
    void deliver(std::function<void()> call) const;
    /// Sleeps for the given time, or until the task is canceled.
    void pause(std::chrono::milliseconds time) const;
    /// Cancels the task. Thread-safe.
    void cancel();

private:
    friend class Background;

    /// The receiver of deliveries: an object of the main thread, null after it is destroyed.
    struct Mailbox {
        std::mutex mutex;
        QObject *receiver = nullptr;
    };

    explicit BackgroundTask(std::shared_ptr<Mailbox> mailbox)
        : m_mailbox(std::move(mailbox))
    {
    }

    std::shared_ptr<Mailbox> m_mailbox;
    int m_canceled = 0;
};

/// Starts tasks that may wait for a network, and owns their deliveries. Belongs to an object of the main
/// thread that uses their results.
///
/// The destructor cancels all tasks and drops their deliveries, but does not wait for the tasks: the lookup
/// of a host name cannot be interrupted. The work must therefore hold only values and shared pointers of its
/// own.
class Background {
public:
    /// Starts no task.
    Background();
    ~Background();
    Background(const Background &) = delete;
    Background &operator=(const Background &) = delete;

    /// Runs the work on a new thread and returns its task.
    std::shared_ptr<BackgroundTask> start(std::function<void(BackgroundTask &)> work);

    /// Runs work that cannot be interrupted and whose result may no longer be needed when it is complete. Its
    /// thread, like all threads of this class, is named "kv-background", for debuggers and for code that
    /// waits for its end.
    static void detach(std::function<void()> work);

    /// Returns whether this class has started any thread in this program. When a server is silent, such a
    /// thread may run until the program ends, and must not access what a normal exit has already destroyed.
    static bool wasUsed();

private:
    QObject m_receiver;
    std::shared_ptr<BackgroundTask::Mailbox> m_mailbox;
    std::vector<std::weak_ptr<BackgroundTask>> m_tasks;
};

} // namespace server
} // namespace cups
} // namespace host
