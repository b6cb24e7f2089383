// SPDX-License-Identifier: Apache-2.0
#include "HttpFraming.h"

#include <algorithm>

namespace test_support {

namespace {

const QByteArray endOfHeader = "\r\n\r\n";
constexpr qsizetype keptContent = 64;

} // namespace

qsizetype HttpFraming::read(QByteArrayView bytes)
{
    if (isComplete())
        *this = HttpFraming();
    if (m_part == Part::Complete)
        m_part = Part::Header;
    qsizetype position = 0;
    while (position < bytes.size() && !isComplete()) {
        if (m_part == Part::Content)
            position += readContent(bytes.sliced(position));
        else
            readByte(bytes[position++]);
    }
    return position;
}

qsizetype HttpFraming::readContent(QByteArrayView bytes)
{
    const auto length = static_cast<qsizetype>(std::min<qint64>(m_missing, bytes.size()));
    const qsizetype room = std::min(length, keptContent - m_contentStart.size());
    m_contentStart.append(bytes.first(room));
    m_missing -= length;
    if (m_missing == 0)
        m_part = m_isChunked ? Part::ChunkEnd : Part::Complete;
    return length;
}

void HttpFraming::readByte(char byte)
{
    QByteArray &text = m_part == Part::Header ? m_header : m_line;
    text.append(byte);
    if (m_part == Part::Header) {
        if (m_header.endsWith(endOfHeader))
            endHeader();
        return;
    }
    if (byte != '\n')
        return;
    if (m_part == Part::ChunkLength)
        endChunkLength();
    else if (m_part == Part::ChunkEnd)
        m_part = Part::ChunkLength;
    else if (m_line.trimmed().isEmpty())
        m_part = Part::Complete;
    m_line.clear();
}

void HttpFraming::endHeader()
{
    m_isChunked = field("Transfer-Encoding").toLower() == "chunked";
    m_missing = field("Content-Length").toLongLong();
    if (m_isChunked)
        m_part = Part::ChunkLength;
    else
        m_part = m_missing > 0 ? Part::Content : Part::Complete;
}

void HttpFraming::endChunkLength()
{
    m_missing = m_line.trimmed().toLongLong(nullptr, 16);
    m_part = m_missing > 0 ? Part::Content : Part::Trailer;
}

QByteArray HttpFraming::field(const QByteArray &name) const
{
    const QByteArray start = '\n' + name.toLower() + ':';
    const qsizetype found = m_header.toLower().indexOf(start);
    if (found < 0)
        return {};
    const qsizetype value = found + start.size();
    return m_header.sliced(value, m_header.indexOf('\r', value) - value).trimmed();
}

} // namespace test_support
