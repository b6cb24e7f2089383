// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>

namespace test_support {

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

    /// The longest time without an answer so far, the one that is being waited for included.
    std::chrono::milliseconds worst() const;
    /// What the user takes for immediate: 100 ms; more under sanitizers, which make everything slower.
    static std::chrono::milliseconds limit();

private:
    /// When somebody knocked, and for how long the main thread had waited for a processor until then.
    struct Knock {
        std::chrono::steady_clock::time_point time;
        std::chrono::milliseconds queued;
    };

    void watch();
    /// For how long it has been unanswered.
    std::chrono::milliseconds waitedFor(const Knock &knock) const;

    QObject m_door;
    const qint64 m_mainThread;
    mutable std::mutex m_mutex;
    std::optional<Knock> m_unanswered;
    std::chrono::milliseconds m_worst{0};
    std::atomic<bool> m_isEnding = false;
    std::thread m_watcher;
};

} // namespace test_support

/// Checks that the event loop has never stalled while the watch stood.
#define EXPECT_NO_STALL(watch)                                                                               \
    EXPECT_LE((watch).worst().count(), test_support::StallWatch::limit().count()) << "milliseconds"
