// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/documents/LabelDocument.h>

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace host {
inline namespace labels {

/// A thread that draws and measures the pages of a document with its own instance of the document, so that
/// windows do not wait for the renderer. Belongs to the main thread. The thread starts with its first task.
///
/// The destructor interrupts the page that is being drawn and discards results that are not delivered yet. It
/// does not wait for the end of the task; tasks must therefore hold values only.
class PageThread {
public:
    /// The function that delivers a task's results on the main thread.
    using Delivery = std::function<void()>;
    /// Returns whether the task should return its results so far, because a more urgent task waits or the
    /// thread ends. Tasks call it after each page.
    using ShouldPause = std::function<bool()>;
    using Task = std::function<Delivery(const LabelDocument &document, const ShouldPause &shouldPause)>;
    /// Tasks run by urgency, and within it in order. A job that is about to be printed waits for Awaited
    /// tasks.
    enum class Urgency { Shown, Awaited, Measured, Checked };

    /// Opens the document's files again.
    explicit PageThread(const LabelDocument &document);
    ~PageThread();
    PageThread(const PageThread &) = delete;
    PageThread &operator=(const PageThread &) = delete;

    /// Runs the task on the thread, and then its delivery on the main thread, unless the receiver is
    /// destroyed before.
    void run(Urgency urgency, QObject *receiver, Task task);

private:
    class Queue;

    static void work(Queue &queue, LabelDocument::Source source);

    std::optional<LabelDocument::Source> m_source;
    /// Reads the pages for the thread.
    std::shared_ptr<RendererProcess> m_renderer;
    QObject m_mailbox;
    std::shared_ptr<Queue> m_queue;
    std::thread m_thread;
};

} // namespace labels
} // namespace host
