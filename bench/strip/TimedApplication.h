// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QString>

#include <chrono>

namespace bench {

/// Measures how long the main thread is busy with one event: during that time, the window does not react.
class TimedApplication : public QApplication {
public:
    using Duration = std::chrono::duration<double, std::milli>;

    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

    /// Resets the measurement.
    void reset() { m_longest = m_busiest = {}; }
    Duration longest() const { return m_longest; }
    /// The same in processor time: the time of other programs does not count, but neither does waiting.
    Duration busiest() const { return m_busiest; }
    /// The type and the receiver of that event.
    const QString &longestName() const { return m_longestName; }

private:
    int m_depth = 0;
    Duration m_longest{};
    Duration m_busiest{};
    QString m_longestName;
};

} // namespace bench
