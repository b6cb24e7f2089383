// SPDX-License-Identifier: Apache-2.0
#include "StallWatch.h"

#include "TimedApplication.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace bench {

namespace {

constexpr std::chrono::milliseconds interval{1};

void setMeasuringEvents(bool measuring)
{
    if (auto *const application = dynamic_cast<TimedApplication *>(QCoreApplication::instance()))
        application->setMeasuring(measuring);
}

} // namespace

StallWatch::StallWatch()
    : m_mainThread(gettid())
    , m_watcher([this] { watch(); })
{
    setMeasuringEvents(true);
}

StallWatch::~StallWatch()
{
    setMeasuringEvents(false);
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
    }
    m_answered.notify_all();
    m_watcher.join();
}

StallWatch::Duration StallWatch::longest()
{
    QCoreApplication::processEvents();
    return m_longest;
}

StallWatch::Duration StallWatch::timeInQueue() const
{
    QFile file(QStringLiteral("/proc/self/task/%1/schedstat").arg(m_mainThread));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return std::chrono::nanoseconds(file.readAll().split(' ').value(1).toLongLong());
}

void StallWatch::watch()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        m_isAnswered = false;
        const Duration queued = timeInQueue();
        const auto posted = std::chrono::steady_clock::now();
        QMetaObject::invokeMethod(
            &m_receiver, [this, posted, queued] { answer(posted, queued); }, Qt::QueuedConnection);
        m_answered.wait(lock, [this] { return m_isAnswered || m_isEnding; });
        m_answered.wait_for(lock, interval, [this] { return m_isEnding; });
    }
}

void StallWatch::answer(std::chrono::steady_clock::time_point posted, Duration queued)
{
    const Duration took = std::chrono::steady_clock::now() - posted;
    m_longest = std::max(m_longest, took - (timeInQueue() - queued));
    {
        const std::scoped_lock lock(m_mutex);
        m_isAnswered = true;
    }
    m_answered.notify_all();
}

} // namespace bench
