// SPDX-License-Identifier: Apache-2.0
#include "PageThread.h"

#include <host/rendering/RendererProcess.h>

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

#include <pthread.h>

namespace host {
inline namespace labels {

namespace {

/// Threads that still end their last task. The end of the application object waits for them, some
/// milliseconds: their renderers are canceled.
class EndingThreads {
public:
    static EndingThreads &instance()
    {
        static EndingThreads threads;
        return threads;
    }

    ~EndingThreads() { join(); }

    void join()
    {
        for (Ending &each : m_threads)
            each.thread.join();
        m_threads.clear();
    }

    void add(std::thread thread, std::shared_ptr<std::atomic<bool>> hasEnded)
    {
        std::erase_if(m_threads, [](Ending &each) {
            if (!*each.hasEnded)
                return false;
            each.thread.join();
            return true;
        });
        m_threads.push_back({std::move(thread), std::move(hasEnded)});
    }

private:
    struct Ending {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> hasEnded;
    };

    EndingThreads()
    {
        qAddPostRoutine([] { instance().join(); });
    }

    std::vector<Ending> m_threads;
};

} // namespace

/// The state that both threads share: the waiting tasks, and the receiver of deliveries.
class PageThread::Queue {
public:
    /// Accessed by the main thread only.
    using Receiver = std::shared_ptr<const QPointer<QObject>>;

    struct Entry {
        Urgency urgency = Urgency::Checked;
        Receiver receiver;
        Task task;
    };

    explicit Queue(QObject *mailbox)
        : m_mailbox(mailbox)
    {
    }

    std::shared_ptr<std::atomic<bool>> hasEnded = std::make_shared<std::atomic<bool>>(false);

    void add(Entry entry)
    {
        const std::scoped_lock lock(m_mutex);
        entriesOf(entry.urgency).push_back(std::move(entry));
        m_changed.notify_one();
    }

    /// Returns the next task; absent if the thread must end.
    std::optional<Entry> next()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            if (!m_mailbox)
                return std::nullopt;
            const auto waiting =
                std::ranges::find_if(m_entries, [](const auto &entries) { return !entries.empty(); });
            if (waiting != m_entries.end()) {
                Entry entry = std::move(waiting->front());
                waiting->pop_front();
                return entry;
            }
            m_changed.wait(lock);
        }
    }

    bool shouldPause(Urgency running)
    {
        const std::scoped_lock lock(m_mutex);
        const auto moreUrgentEnd = m_entries.begin() + static_cast<int>(running);
        return !m_mailbox || std::any_of(m_entries.begin(), moreUrgentEnd,
                                         [](const auto &entries) { return !entries.empty(); });
    }

    void deliver(Receiver receiver, Delivery delivery)
    {
        // The mailbox cannot end while the lock is held; a call that is still queued ends with it.
        const std::scoped_lock lock(m_mutex);
        if (!m_mailbox)
            return;
        QMetaObject::invokeMethod(
            m_mailbox,
            [receiver = std::move(receiver), delivery = std::move(delivery)] {
                if (*receiver)
                    delivery();
            },
            Qt::QueuedConnection);
    }

    void end()
    {
        const std::scoped_lock lock(m_mutex);
        m_mailbox = nullptr;
        m_entries = {};
        m_changed.notify_one();
    }

private:
    std::deque<Entry> &entriesOf(Urgency urgency) { return m_entries[static_cast<std::size_t>(urgency)]; }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<std::deque<Entry>, 4> m_entries;
    /// Null when the thread must end.
    QObject *m_mailbox;
};

PageThread::PageThread(const LabelDocument &document)
    : m_source(document.source())
    , m_renderer(m_source->renderer)
    , m_queue(std::make_shared<Queue>(&m_mailbox))
{
    // Created before the first thread, so that the end of the application object finds it.
    EndingThreads::instance();
}

PageThread::~PageThread()
{
    m_queue->end();
    m_renderer->cancel();
    if (m_thread.joinable())
        EndingThreads::instance().add(std::move(m_thread), m_queue->hasEnded);
}

void PageThread::run(Urgency urgency, QObject *receiver, Task task)
{
    m_queue->add({urgency, std::make_shared<const QPointer<QObject>>(receiver), std::move(task)});
    if (m_thread.joinable())
        return;
    m_thread = std::thread([queue = m_queue, source = std::move(*m_source)]() mutable {
        work(*queue, std::move(source));
        *queue->hasEnded = true;
    });
    m_source.reset();
    pthread_setname_np(m_thread.native_handle(), "kv-pages");
}

void PageThread::work(Queue &queue, LabelDocument::Source source)
{
    const std::unique_ptr<LabelDocument> document = LabelDocument::openAgain(std::move(source));
    while (std::optional<Queue::Entry> entry = queue.next()) {
        Delivery delivery = entry->task(*document, [&] { return queue.shouldPause(entry->urgency); });
        queue.deliver(std::move(entry->receiver), std::move(delivery));
    }
}

} // namespace labels
} // namespace host
