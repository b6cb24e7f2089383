// SPDX-License-Identifier: Apache-2.0
#include "ImageFacts.h"

#include <host/base/Length.h>

#include <QtEndian>

namespace host {
inline namespace images {

namespace {

constexpr double inchesPerMetre = 1.0 / metresPerInch;

/// Reads big-endian numbers; bytes beyond the end read as 0.
class Bytes {
public:
    explicit Bytes(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    qsizetype size() const { return m_bytes.size(); }
    int byte(qsizetype at) const { return holds(at, 1) ? static_cast<uchar>(m_bytes[at]) : 0; }
    int word(qsizetype at) const { return byte(at) * 256 + byte(at + 1); }
    quint32 number(qsizetype at) const
    {
        return holds(at, 4) ? qFromBigEndian<quint32>(m_bytes.constData() + at) : 0;
    }
    bool isAt(qsizetype at, const QByteArray &text) const
    {
        return holds(at, text.size()) && m_bytes.sliced(at, text.size()) == text;
    }

private:
    bool holds(qsizetype at, qsizetype count) const { return at <= m_bytes.size() - count; }

    const QByteArray &m_bytes;
};

/// Reads the segments of a JPEG, from marker to marker.
class JpegSegments {
public:
    explicit JpegSegments(const QByteArray &jpeg)
        : m_bytes(jpeg)
    {
    }

    ImageFacts facts()
    {
        constexpr int endOfImage = 0xD9;
        constexpr int startOfScan = 0xDA;
        while (goToMarker()) {
            const int marker = m_bytes.byte(m_at + 1);
            if (marker == endOfImage) {
                m_facts.complete = true;
                break;
            }
            const qsizetype content = m_at + 4;
            const int length = m_bytes.word(m_at + 2);
            if (length < 2)
                break;
            readSegment(marker, content);
            m_at = content + length - 2;
            if (marker == startOfScan)
                skipScan();
        }
        return m_facts;
    }

private:
    /// Skips the bytes 0xFF that may fill the space before a marker. Returns false if no marker follows.
    bool goToMarker()
    {
        while (m_bytes.byte(m_at) == 0xFF && m_bytes.byte(m_at + 1) == 0xFF)
            ++m_at;
        return m_bytes.byte(m_at) == 0xFF && m_at + 1 < m_bytes.size();
    }

    /// Skips the data of a scan. In it, 0xFF is followed by 0 or by the number of a restart marker.
    void skipScan()
    {
        for (; m_at < m_bytes.size(); ++m_at) {
            const int next = m_bytes.byte(m_at + 1);
            if (m_bytes.byte(m_at) == 0xFF && next != 0 && (next < 0xD0 || next > 0xD7))
                return;
        }
    }

    void readSegment(int marker, qsizetype content)
    {
        constexpr int jfifHead = 0xE0;
        // Baseline, extended and progressive frames with Huffman codes: all that the DCTDecode filter reads.
        constexpr int firstFrame = 0xC0;
        constexpr int lastFrame = 0xC2;
        if (marker == jfifHead && m_bytes.isAt(content, QByteArray("JFIF\0", 5)))
            readResolution(content);
        if (marker >= firstFrame && marker <= lastFrame && m_bytes.byte(content) == 8) {
            const int colors = m_bytes.byte(content + 5);
            m_facts.pdfColors = colors == 1 || colors == 3 ? std::optional(colors) : std::nullopt;
        }
    }

    void readResolution(qsizetype content)
    {
        const QSizeF dots(m_bytes.word(content + 8), m_bytes.word(content + 10));
        const int unit = m_bytes.byte(content + 7);
        if (dots.isEmpty() || unit < 1 || unit > 2)
            return;
        m_facts.resolution = dots * (unit == 1 ? inchesPerMetre : 100.0);
    }

    Bytes m_bytes;
    qsizetype m_at = 2;
    ImageFacts m_facts;
};

} // namespace

ImageFacts pngFacts(const QByteArray &png)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype chunkFrame = 12;
    const Bytes bytes(png);
    ImageFacts facts;
    for (qsizetype at = signature; at + chunkFrame <= bytes.size();) {
        const QSizeF dots(bytes.number(at + 8), bytes.number(at + 12));
        if (bytes.isAt(at + 4, "pHYs") && bytes.byte(at + 16) == 1 && !dots.isEmpty())
            facts.resolution = dots;
        if (bytes.isAt(at + 4, "IEND")) {
            facts.complete = true;
            break;
        }
        at += chunkFrame + static_cast<qsizetype>(bytes.number(at));
    }
    return facts;
}

ImageFacts jpegFacts(const QByteArray &jpeg)
{
    return JpegSegments(jpeg).facts();
}

} // namespace images
} // namespace host
