// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>

#include <chrono>

namespace bench {

/// Measures the processor time that each event of the main thread takes, with the events that it sends in
/// turn. What an event loop within an event does counts as events of its own.
class TimedApplication : public QApplication {
public:
    using Duration = std::chrono::duration<double, std::milli>;

    using QApplication::QApplication;

    /// Begins to measure events, or ends it. An event that is being delivered is not measured.
    void setMeasuring(bool measuring) { m_isMeasuring = measuring; }
    /// The longest event that was measured since the last call.
    Duration resetMax();

    bool notify(QObject *receiver, QEvent *event) override;

private:
    bool m_isMeasuring = false;
    Duration m_longest{0};
    /// Of the event that is being delivered; -1 while none is.
    int m_loopLevel = -1;
    /// What event loops within the event that is being delivered took.
    Duration m_inner{0};
};

} // namespace bench
