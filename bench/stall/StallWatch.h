// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace bench {

/// Measures for how long the main thread's event loop does not answer: another thread posts a call every
/// millisecond, and the main thread reads the clock when it comes to the call. How late the other thread
/// wakes up does not matter. While the main thread is ready to run, but other programs have the processor,
/// the time is not counted.
///
/// While it lives, the application measures its events, too (TimedApplication).
///
/// Made and ended on the main thread, around what must not stall the window.
class StallWatch {
public:
    using Duration = std::chrono::duration<double, std::milli>;

    StallWatch();
    ~StallWatch();
    StallWatch(const StallWatch &) = delete;
    StallWatch &operator=(const StallWatch &) = delete;

    /// The longest time until an answer, so far. Turns the event loop once, so that the last call is
    /// answered.
    Duration longest();

private:
    void watch();
    void answer(std::chrono::steady_clock::time_point posted, Duration queued);
    /// For how long the main thread has been ready to run and did not; 0 where the system does not report it.
    Duration timeInQueue() const;

    QObject m_receiver;
    const qint64 m_mainThread;
    std::mutex m_mutex;
    std::condition_variable m_answered;
    bool m_isAnswered = true;
    bool m_isEnding = false;
    /// Only the main thread uses it.
    Duration m_longest{0};
    std::thread m_watcher;
};

} // namespace bench
