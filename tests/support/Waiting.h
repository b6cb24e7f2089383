// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>
#include <QTimer>

#include <chrono>

namespace test_support {

/// The timeout after which a test fails. It only bounds failures: no check passes because time has passed, so
/// a busy machine only makes tests slower.
constexpr std::chrono::milliseconds failureTimeout = std::chrono::minutes(2);
constexpr int failureMilliseconds = static_cast<int>(failureTimeout.count());

/// Processes events until the condition holds. Returns false on timeout.
template<typename Condition>
bool waitUntil(Condition condition)
{
    return QTest::qWaitFor(condition, failureMilliseconds);
}

/// Processes events until everything due now has been handled: posted events, zero timers, and what these
/// defer to the next iteration of the event loop. Use it to prove that something does not happen that would
/// have happened by then.
inline void turnEventLoop()
{
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        bool hasTurned = false;
        QTimer::singleShot(0, [&] { hasTurned = true; });
        if (!waitUntil([&] { return hasTurned; }))
            qFatal("The event loop does not turn.");
    }
}

} // namespace test_support
