// SPDX-License-Identifier: Apache-2.0
#include "BackgroundThreads.h"

#include "Waiting.h"

#include <QDir>
#include <QFile>

#include <thread>

namespace test_support {

namespace {

bool hasBackgroundThreads()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name(threads.filePath(thread + QStringLiteral("/comm")));
        if (name.open(QIODevice::ReadOnly) && name.readAll() == "kv-background\n")
            return true;
    }
    return false;
}

} // namespace

void awaitBackgroundThreads()
{
    constexpr std::chrono::milliseconds step{10};
    for (auto time = step * 0; time < failureTimeout && hasBackgroundThreads(); time += step)
        std::this_thread::sleep_for(step);
}

} // namespace test_support
