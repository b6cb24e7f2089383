// SPDX-License-Identifier: Apache-2.0
// Every test program runs with real widgets on the offscreen platform, in a home of its own that
// lasts as long as the program: no user's settings are read or written.
#include "BackgroundThreads.h"
#include "TestHome.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <csignal>

namespace {

/// A shell lets what it starts in the background ignore some signals, and all that the tests start would too.
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
    // What a thread has in hand while it ends is taken for a leak.
    test_support::awaitBackgroundThreads();
    return result;
}
