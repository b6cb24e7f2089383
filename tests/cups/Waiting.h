// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>

#include <functional>

/// Lets events come in until the condition holds. False when it does not within the time, in milliseconds.
inline bool waitFor(const std::function<bool()> &condition, int time = 15000)
{
    return QTest::qWaitFor(condition, time);
}
