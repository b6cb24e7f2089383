// SPDX-License-Identifier: Apache-2.0
#include "StallWatch.h"

#include <QFile>

#include <memory>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds knockInterval{3};

#if defined(__SANITIZE_ADDRESS__)
constexpr int slowness = 5;
#else
constexpr int slowness = 1;
#endif

/// For how long the thread has been ready to run and did not, in milliseconds; 0 where the system does not
/// tell.
qint64 timeInQueue(qint64 thread)
{
    QFile file(QStringLiteral("/proc/self/task/%1/schedstat").arg(thread));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr qint64 nanosecondsPerMillisecond = 1'000'000;
    return file.readAll().split(' ').value(1).toLongLong() / nanosecondsPerMillisecond;
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

void StallWatch::watch()
{
    while (!m_isEnding) {
        const auto answered = std::make_shared<std::atomic<bool>>(false);
        const qint64 queuedBefore = timeInQueue(m_mainThread);
        const Clock::time_point knocked = Clock::now();
        QMetaObject::invokeMethod(
            &m_door, [answered] { *answered = true; }, Qt::QueuedConnection);
        while (!*answered && !m_isEnding)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (!*answered)
            return;
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - knocked);
        const qint64 stalled = took.count() - (timeInQueue(m_mainThread) - queuedBefore);
        m_worst = std::max(m_worst.load(), stalled);
        std::this_thread::sleep_for(knockInterval);
    }
}
