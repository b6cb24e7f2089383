// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WindowWatch.h"

#include <QStringList>

#include <sys/types.h>

namespace bench {

/// A program that has been started to open its window; ended with the object.
class Opening {
public:
    /// command is the program's path and its arguments; environment is all that the program gets, each
    /// entry "NAME=value"; what it writes goes to the file at output.
    Opening(const QStringList &command, const QList<QByteArray> &environment, const QString &output);
    ~Opening();
    Opening(const Opening &) = delete;
    Opening &operator=(const Opening &) = delete;

    /// Taken just before the program was started.
    Clock::time_point start() const { return m_start; }
    /// The peak memory of the program so far, in KiB; 0 when it has ended. The number is the program's own:
    /// that of wait4() would count the bench's memory too, as the child has it before exec.
    qint64 peakMemory() const;

    /// The processor time of the program's main thread so far, in milliseconds; other load of the machine
    /// hardly changes it.
    double processorTime() const;

private:
    QByteArray readStatus(const char *name) const;

    Clock::time_point m_start;
    pid_t m_process = -1;
};

} // namespace bench
