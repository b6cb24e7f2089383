// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace programs {
inline namespace kvprint {

/// The output of a run.
struct Console {
    /// Writes data and results. Returns false if they cannot be written; the error has been reported then.
    std::function<bool(const QString &)> out;
    /// Writes messages for users.
    std::function<void(const QString &)> error;

    /// Writes the message as a line that begins with the program's name.
    void printError(const QString &message) const;
    /// Writes the line that identifies a sent job to scripts. If standard output cannot be written, writes it
    /// to standard error, so that the user does not print again.
    void printRequestId(const QString &queue, int jobId, qsizetype documents) const;
};

} // namespace kvprint
} // namespace programs
