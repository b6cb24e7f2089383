// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace programs {
inline namespace kvprint {

/// The program's standard output and standard error. Reports once on standard error if standard output
/// cannot be written.
class StandardStreams {
public:
    /// Opens standard streams that were closed when the program started, so that no file that is opened later
    /// is read or written in their place. Must be created before any file is opened.
    StandardStreams();

    /// Writes immediately. Returns false if the text cannot be written.
    bool out(const QString &text);
    static void error(const QString &text);

    /// Returns whether a text could not be written to standard output.
    bool isOutputIncomplete() const { return m_isOutputIncomplete; }

private:
    bool m_isOutputIncomplete = false;
};

} // namespace kvprint
} // namespace programs
