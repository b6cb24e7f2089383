// SPDX-License-Identifier: Apache-2.0
#include "LineReader.h"

#include <cerrno>
#include <unistd.h>

bool LineReader::fill()
{
    constexpr std::size_t blockSize = 1 << 16;
    m_buffer.resize(blockSize);
    m_position = 0;
    ssize_t count = 0;
    do {
        count = ::read(m_descriptor, m_buffer.data(), blockSize);
    } while (count < 0 && errno == EINTR);
    m_buffer.resize(count > 0 ? count : 0);
    return count > 0;
}

LineReader::Result LineReader::next(QByteArray *line)
{
    line->clear();
    bool tooLong = false;
    for (;;) {
        if (m_position >= m_buffer.size() && !fill())
            return tooLong ? Result::TooLong : line->isEmpty() ? Result::End : Result::Line;
        const qsizetype end = m_buffer.indexOf('\n', m_position);
        const qsizetype stop = end < 0 ? m_buffer.size() : end;
        tooLong = tooLong || line->size() + stop - m_position > maxLineLength;
        if (tooLong)
            line->clear();
        else
            line->append(m_buffer.constData() + m_position, stop - m_position);
        m_position = end < 0 ? stop : stop + 1;
        if (end >= 0)
            return tooLong ? Result::TooLong : Result::Line;
    }
}
