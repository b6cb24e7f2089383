// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace programs {
inline namespace kvprint {

/// The program's standard output and standard error. What cannot be written to standard output is told on
/// standard error, once.
class StandardStreams {
public:
    /// Opens standard streams that were closed when the program started, so that no file that is opened later
    /// is read or written in their place. Must be created before any file is opened.
    StandardStreams();

    /// Writes at once; false when it cannot be written.
    bool out(const QString &text);
    static void error(const QString &text);

    /// Whether something is missing from standard output.
    bool isOutputIncomplete() const { return m_isOutputIncomplete; }

private:
    bool m_isOutputIncomplete = false;
};

} // namespace kvprint
} // namespace programs
