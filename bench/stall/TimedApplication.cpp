// SPDX-License-Identifier: Apache-2.0
#include "TimedApplication.h"

#include <QThread>

#include <algorithm>
#include <ctime>
#include <utility>

namespace bench {

namespace {

TimedApplication::Duration processorTime()
{
    std::timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

} // namespace

TimedApplication::Duration TimedApplication::resetMax()
{
    return std::exchange(m_longest, Duration(0));
}

bool TimedApplication::notify(QObject *receiver, QEvent *event)
{
    if (QThread::currentThread() != thread() || !m_isMeasuring)
        return QApplication::notify(receiver, event);
    const int level = QThread::currentThread()->loopLevel();
    if (level == m_loopLevel)
        return QApplication::notify(receiver, event);

    const int outerLevel = std::exchange(m_loopLevel, level);
    const Duration outerInner = std::exchange(m_inner, Duration(0));
    const Duration start = processorTime();
    const bool isAccepted = QApplication::notify(receiver, event);
    const Duration whole = processorTime() - start;
    m_longest = std::max(m_longest, whole - m_inner);
    m_loopLevel = outerLevel;
    m_inner = outerInner + whole;
    return isAccepted;
}

} // namespace bench
