// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <thread>

/// Measures for how long the main thread's event loop does not come round: another thread knocks every few
/// milliseconds and notes how long each answer takes. While the main thread is ready to run, but other
/// programs have the processor, the time is not counted.
///
/// Made and ended on the main thread, around what must not stall the window.
class StallWatch {
public:
    StallWatch();
    ~StallWatch();
    StallWatch(const StallWatch &) = delete;
    StallWatch &operator=(const StallWatch &) = delete;

    /// The longest time without an answer so far.
    std::chrono::milliseconds worst() const { return std::chrono::milliseconds(m_worst.load()); }
    /// What the user takes for immediate: 100 ms; more under sanitizers, which make everything slower.
    static std::chrono::milliseconds limit();

private:
    void watch();

    QObject m_door;
    const qint64 m_mainThread;
    std::atomic<qint64> m_worst = 0;
    std::atomic<bool> m_isEnding = false;
    std::thread m_watcher;
};
