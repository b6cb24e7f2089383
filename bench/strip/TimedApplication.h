// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QString>

#include <chrono>

namespace bench {

/// Measures how long the main thread is busy with one event: for that long, the window does not react.
class TimedApplication : public QApplication {
public:
    using Duration = std::chrono::duration<double, std::milli>;

    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

    /// Begins anew.
    void reset() { m_longest = {}; }
    Duration longest() const { return m_longest; }
    /// Which event that was, and whose.
    const QString &longestName() const { return m_longestName; }

private:
    int m_depth = 0;
    Duration m_longest{};
    QString m_longestName;
};

} // namespace bench
