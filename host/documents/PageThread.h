// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LabelDocument.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace host {
inline namespace documents {

/// A thread that draws and measures a document's pages with an instance of the document of its own, so that
/// no event of a window waits for pdfium. Belongs to the main thread. The thread starts with its first task.
///
/// Destroying it interrupts the task at its next page and drops what is not delivered yet, but does not wait:
/// a page may take long. Tasks therefore hold values only.
class PageThread {
public:
    /// What the main thread runs with a task's results.
    using Delivery = std::function<void()>;
    /// Whether the task should return what it has: something more urgent waits, or the thread ends. To be
    /// asked after each page.
    using ShouldPause = std::function<bool()>;
    using Task = std::function<Delivery(const LabelDocument &document, const ShouldPause &shouldPause)>;
    /// Tasks run by urgency, and in order. A job that is to be printed waits for what is Awaited.
    enum class Urgency { Shown, Awaited, Measured, Checked };

    /// Opens the document's files once more.
    explicit PageThread(const LabelDocument &document);
    ~PageThread();
    PageThread(const PageThread &) = delete;
    PageThread &operator=(const PageThread &) = delete;

    /// Runs the task on the thread, and afterwards its delivery on the main thread, unless the receiver has
    /// ended by then.
    void run(Urgency urgency, QObject *receiver, Task task);

private:
    class Queue;

    static void work(Queue &queue, LabelDocument::Source source);

    std::optional<LabelDocument::Source> m_source;
    QObject m_mailbox;
    std::shared_ptr<Queue> m_queue;
    std::thread m_thread;
};

} // namespace documents
} // namespace host
