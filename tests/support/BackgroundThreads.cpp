// SPDX-License-Identifier: Apache-2.0
#include "BackgroundThreads.h"

#include "Waiting.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <thread>

namespace test_support {

qsizetype backgroundThreadCount()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    const QStringList all = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::ranges::count_if(all, [&](const QString &thread) {
        QFile name(threads.filePath(thread + QStringLiteral("/comm")));
        return name.open(QIODevice::ReadOnly) && name.readAll() == "kv-background\n";
    });
}

void awaitBackgroundThreads()
{
    constexpr std::chrono::milliseconds step{10};
    for (auto time = step * 0; time < failureTimeout && backgroundThreadCount() > 0; time += step)
        std::this_thread::sleep_for(step);
}

} // namespace test_support
