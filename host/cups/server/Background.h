// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace host {

/// A piece of work on a thread of its own, as that thread sees it.
class BackgroundTask {
public:
    /// Work that nobody waits for: its deliveries go nowhere.
    BackgroundTask()
        : m_mailbox(std::make_shared<Mailbox>())
    {
    }

    /// Whether nobody wants the outcome any more. To be looked at often.
    bool isCancelled() const;
    /// The same as a variable that libcups watches. Lives as long as the task.
    int *cancelFlag() { return &m_cancelled; }
    /// Has the main thread call the function, unless those who wait for it are gone by then.
    void deliver(std::function<void()> call) const;
    /// Sleeps, but no longer than until the task is cancelled.
    void pause(std::chrono::milliseconds time) const;
    /// Asks the work to end early. May be called by any thread.
    void cancel();

private:
    friend class Background;

    /// Where deliveries go: an object of the main thread, null once it is gone.
    struct Mailbox {
        std::mutex mutex;
        QObject *receiver = nullptr;
    };

    explicit BackgroundTask(std::shared_ptr<Mailbox> mailbox)
        : m_mailbox(std::move(mailbox))
    {
    }

    std::shared_ptr<Mailbox> m_mailbox;
    int m_cancelled = 0;
};

/// Starts work that may wait for a network, and owns its deliveries. Belongs to an object of the main
/// thread that wants the outcomes.
///
/// Destroying it cancels all its tasks and drops their deliveries, but waits for none of them: looking up a
/// host's name cannot be interrupted. The work must therefore hold on to nothing but values and shared
/// pointers of its own.
class Background {
public:
    Background();
    ~Background();
    Background(const Background &) = delete;
    Background &operator=(const Background &) = delete;

    /// Runs the work on a thread of its own.
    std::shared_ptr<BackgroundTask> start(std::function<void(BackgroundTask &)> work);

    /// Runs work that nothing can interrupt, and whose outcome nobody may want by then. Its thread, like all
    /// threads of this class, is named "kv-background" for debuggers and for those who wait for its end.
    static void detach(std::function<void()> work);

    /// Whether anything was ever started in this program. Its threads may be at work to the very end, when a
    /// server is silent, and must not find what a usual end of the program has taken down by then.
    static bool wasUsed();

private:
    QObject m_receiver;
    std::shared_ptr<BackgroundTask::Mailbox> m_mailbox;
    std::vector<std::weak_ptr<BackgroundTask>> m_tasks;
};

} // namespace host
