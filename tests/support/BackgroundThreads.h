// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace test_support {

/// Returns the number of threads of this program that are named as the background threads are.
qsizetype backgroundThreadCount();

/// Waits until all background threads that send requests to servers have ended. They outlive the objects that
/// started them and may write files that the next test must not find.
void awaitBackgroundThreads();

} // namespace test_support
