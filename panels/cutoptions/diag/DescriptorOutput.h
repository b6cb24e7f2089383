// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

namespace diag {

/// Writes all of the bytes to the file descriptor: goes on after a short write and after one that a
/// signal interrupted. Any other failure ends it silently and leaves the rest unwritten, a pipe without
/// a reader (no SIGPIPE is raised) and a full pipe that must not block included: diagnosing may neither
/// end nor hang the program that is diagnosed.
void writeFully(int descriptor, QByteArrayView bytes);

} // namespace diag
