// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <cstddef>

/// Reads lines from a file descriptor, however long they are, in bounded memory.
class LineReader {
public:
    /// The longest line that is handed over, in bytes without the line end.
    static constexpr qsizetype maxLineLength = qsizetype(16) << 20;

    /// What was read.
    enum class Result {
        Line,
        TooLong, ///< the line was longer than maxLineLength and is skipped
        End,
    };

    explicit LineReader(int descriptor)
        : m_descriptor(descriptor)
    {
    }

    /// The next line, without its line end. A last line without one counts.
    Result next(QByteArray *line);

private:
    bool fill();

    int m_descriptor;
    QByteArray m_buffer;
    qsizetype m_position = 0;
};
