// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace programs {
inline namespace kvprint {

/// Where a run of the program writes what it has to say.
struct Console {
    /// Data and results. False when they cannot be written; that has been told then.
    std::function<bool(const QString &)> out;
    /// Messages for people.
    std::function<void(const QString &)> error;

    /// Writes the message as a line of the program's.
    void printError(const QString &message) const;
    /// Writes the line that identifies a sent job to scripts. If standard output cannot be written, writes it
    /// to standard error, so that the user does not print again.
    void tellRequestId(const QString &queue, int jobId, qsizetype documents) const;
};

} // namespace kvprint
} // namespace programs
