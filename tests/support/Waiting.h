// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>
#include <QTimer>

#include <chrono>

namespace test_support {

/// A test that has waited for so long has failed. It only bounds failures: no check holds because time has
/// passed, so a busy machine makes tests slower and no more.
constexpr std::chrono::milliseconds failureTimeout = std::chrono::minutes(2);
constexpr int failureMilliseconds = static_cast<int>(failureTimeout.count());

/// Processes events until the condition holds. False when it never does.
template<typename Condition>
bool waitUntil(Condition condition)
{
    return QTest::qWaitFor(condition, failureMilliseconds);
}

/// Processes events until all that is due now has been handled: posted events, timers without delay and what
/// these put off to the next round of the event loop. Proves that a thing does not happen whose turn would
/// have come by then.
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
