// SPDX-License-Identifier: Apache-2.0
// Every test program runs with real widgets on the offscreen platform, in a home of its own that
// lasts as long as the program: no user's settings are read or written.
#include "BackgroundThreads.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    if (!home.isValid())
        qFatal("cannot make a home folder for the tests: %s", qPrintable(home.errorString()));
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariable("QT_QPA_PLATFORM", QStringLiteral("offscreen")).toLocal8Bit());
    const QApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    // What a thread has in hand while it ends is taken for a leak.
    test_support::awaitBackgroundThreads();
    return result;
}
