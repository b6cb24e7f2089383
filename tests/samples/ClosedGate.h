// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/labels/PageThread.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QSemaphore>

#include <memory>

/// Blocks a page thread in its first task until open(), so that a test controls what happens while other
/// tasks wait. The task is running when the constructor returns.
class ClosedGate {
public:
    explicit ClosedGate(host::PageThread &thread)
    {
        const auto begun = std::make_shared<QSemaphore>();
        thread.run(host::PageThread::Urgency::Shown, &m_receiver,
                   [begun, opened = m_opened](const host::LabelDocument &, const auto &) {
                       begun->release();
                       opened->acquire();
                       return [] {};
                   });
        begun->acquire();
    }
    ~ClosedGate() { open(); }
    ClosedGate(const ClosedGate &) = delete;
    ClosedGate &operator=(const ClosedGate &) = delete;

    void open() { m_opened->release(); }

private:
    QObject m_receiver;
    std::shared_ptr<QSemaphore> m_opened = std::make_shared<QSemaphore>();
};

/// Returns after the thread has run all its tasks and the main thread all deliveries.
inline void awaitTasks(host::PageThread &thread)
{
    // A delivery may have started another task; the least urgent task runs after it.
    for (int round = 0; round < 3; ++round) {
        QEventLoop loop;
        thread.run(host::PageThread::Urgency::Checked, &loop,
                   [&loop](const host::LabelDocument &, const auto &) { return [&loop] { loop.quit(); }; });
        loop.exec();
    }
}
