// SPDX-License-Identifier: Apache-2.0
#include "StallWatch.h"

#include <QFile>

#include <memory>
#include <unistd.h>

namespace test_support {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds knockInterval{3};

#if defined(__SANITIZE_ADDRESS__)
constexpr int slowness = 5;
#else
constexpr int slowness = 1;
#endif

/// For how long the thread has been ready to run and did not; 0 where the system does not tell.
std::chrono::milliseconds timeInQueue(qint64 thread)
{
    QFile file(QStringLiteral("/proc/self/task/%1/schedstat").arg(thread));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const std::chrono::nanoseconds queued(file.readAll().split(' ').value(1).toLongLong());
    return std::chrono::duration_cast<std::chrono::milliseconds>(queued);
}

} // namespace

StallWatch::StallWatch()
    : m_mainThread(gettid())
    , m_watcher([this] { watch(); })
{
}

StallWatch::~StallWatch()
{
    m_isEnding = true;
    m_watcher.join();
}

std::chrono::milliseconds StallWatch::limit()
{
    return std::chrono::milliseconds(100) * slowness;
}

std::chrono::milliseconds StallWatch::worst() const
{
    const std::scoped_lock lock(m_mutex);
    return m_unanswered ? std::max(m_worst, waitedFor(*m_unanswered)) : m_worst;
}

std::chrono::milliseconds StallWatch::waitedFor(const Knock &knock) const
{
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - knock.time);
    return took - (timeInQueue(m_mainThread) - knock.queued);
}

void StallWatch::watch()
{
    while (!m_isEnding) {
        const auto answered = std::make_shared<std::atomic<bool>>(false);
        {
            const std::scoped_lock lock(m_mutex);
            m_unanswered = Knock{Clock::now(), timeInQueue(m_mainThread)};
        }
        QMetaObject::invokeMethod(
            &m_door, [answered] { *answered = true; }, Qt::QueuedConnection);
        while (!*answered && !m_isEnding)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        {
            const std::scoped_lock lock(m_mutex);
            m_worst = std::max(m_worst, waitedFor(*m_unanswered));
            m_unanswered.reset();
        }
        std::this_thread::sleep_for(knockInterval);
    }
}

} // namespace test_support
