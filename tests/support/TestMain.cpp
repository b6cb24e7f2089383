// SPDX-License-Identifier: Apache-2.0
// Every test program runs with real widgets on the offscreen platform, in its own temporary home folder: no
// user's settings are read or written.
#include "BackgroundThreads.h"
#include "TestHome.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <csignal>

namespace {

/// A shell starts background programs with some signals ignored, and all programs that the tests start would
/// inherit that.
void heedSignals()
{
    for (const int number : {SIGINT, SIGQUIT, SIGTERM, SIGHUP})
        std::signal(number, SIG_DFL);
}

} // namespace

int main(int argc, char **argv)
{
    heedSignals();
    testing::InitGoogleTest(&argc, argv);
    const test_support::TestHome home;
    const QApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    // The leak checker reports memory of threads that are still ending.
    test_support::awaitBackgroundThreads();
    return result;
}
