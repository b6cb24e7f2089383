// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace test_support {

/// Waits until all background threads that send requests to servers have ended. They outlive the objects that
/// started them and may write files that the next test must not find.
void awaitBackgroundThreads();

} // namespace test_support
