// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace test_support {

/// Waits until all threads that ask servers in the background have ended. They outlive the objects that have
/// started them, and may write down what the next test is not to find.
void awaitBackgroundThreads();

} // namespace test_support
