// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace test_support {

/// Finds where messages of HTTP/1.1 end in one direction of a connection (RFC 9112, section 6): by
/// Content-Length, by the last chunk, or after the header when the message has no content.
class HttpFraming {
public:
    /// Reads the next bytes of the direction, at most up to the end of the message. Returns how many bytes
    /// belong to the message.
    qsizetype read(QByteArrayView bytes);
    /// Returns true if the message is complete; the next read() begins another one.
    bool isComplete() const { return m_part == Part::Complete; }
    /// The header, or the part that was read, including its last empty line.
    const QByteArray &header() const { return m_header; }
    /// The beginning of the content, without chunk lengths: enough for the head of an IPP message.
    const QByteArray &contentStart() const { return m_contentStart; }

private:
    enum class Part { Header, Content, ChunkLength, ChunkEnd, Trailer, Complete };

    void readByte(char byte);
    void endHeader();
    void endChunkLength();
    qsizetype readContent(QByteArrayView bytes);
    QByteArray field(const QByteArray &name) const;

    Part m_part = Part::Complete;
    bool m_isChunked = false;
    QByteArray m_header;
    QByteArray m_contentStart;
    /// The line that is being read: a chunk's length, its end or the trailer.
    QByteArray m_line;
    /// The number of bytes still to come of the content or the chunk.
    qint64 m_missing = 0;
};

} // namespace test_support
