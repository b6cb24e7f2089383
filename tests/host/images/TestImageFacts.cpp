// SPDX-License-Identifier: Apache-2.0
#include <host/images/ImageFacts.h>

#include <QtEndian>

#include <gtest/gtest.h>

using host::ImageFacts;
using host::jpegFacts;
using host::pngFacts;

namespace {

const QByteArray pngSignature("\x89PNG\r\n\x1A\n", 8);

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, 0);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// A chunk with a wrong checksum: image readers check it.
QByteArray pngChunk(const QByteArray &name, const QByteArray &content)
{
    return bigEndian(static_cast<quint32>(content.size())) + name + content + bigEndian(0);
}

QByteArray pngResolution(quint32 across, quint32 down, char unit)
{
    return pngChunk("pHYs", bigEndian(across) + bigEndian(down) + unit);
}

QByteArray jpegSegment(char marker, const QByteArray &content)
{
    const auto length = static_cast<quint32>(content.size()) + 2;
    return QByteArray("\xFF") + marker + bigEndian(length).sliced(2) + content;
}

QByteArray jfif(int unit, quint32 across, quint32 down)
{
    return jpegSegment('\xE0', QByteArray("JFIF\0\1\2", 7) + static_cast<char>(unit) +
                                   bigEndian(across).sliced(2) + bigEndian(down).sliced(2) +
                                   QByteArray(2, 0));
}

QByteArray frame(char marker, int bits, int colors)
{
    return jpegSegment(marker, QByteArray(1, static_cast<char>(bits)) + QByteArray("\0\4\0\4", 4) +
                                   static_cast<char>(colors) + QByteArray(qsizetype{3} * colors, 1));
}

const QByteArray jpegStart("\xFF\xD8");
const QByteArray jpegEnd("\xFF\xD9");

ImageFacts facts(bool complete, const std::optional<QSizeF> &resolution = {}, std::optional<int> colors = {})
{
    return {complete, resolution, colors};
}

void expectFacts(const ImageFacts &found, const ImageFacts &expected, const char *name)
{
    EXPECT_EQ(found.complete, expected.complete) << name;
    EXPECT_EQ(found.pdfColors, expected.pdfColors) << name;
    ASSERT_EQ(found.resolution.has_value(), expected.resolution.has_value()) << name;
    if (found.resolution) {
        EXPECT_NEAR(found.resolution->width(), expected.resolution->width(), 0.01) << name;
        EXPECT_NEAR(found.resolution->height(), expected.resolution->height(), 0.01) << name;
    }
}

} // namespace

TEST(ImageFacts, OfPngs)
{
    const QByteArray end = pngChunk("IEND", {});
    struct Row {
        const char *name;
        QByteArray png;
        ImageFacts expected;
    };
    const Row rows[] = {
        {"empty", {}, {}},
        {"signature", pngSignature, {}},
        {"end", pngSignature + end, facts(true)},
        {"end without its checksum", pngSignature + end.chopped(1), {}},
        {"resolution", pngSignature + pngResolution(11811, 5906, 1) + end, facts(true, QSizeF(11811, 5906))},
        {"no end", pngSignature + pngResolution(11811, 5906, 1), facts(false, QSizeF(11811, 5906))},
        {"shape only", pngSignature + pngResolution(1, 2, 0) + end, facts(true)},
        {"no dots", pngSignature + pngResolution(0, 100, 1) + end, facts(true)},
        {"all dots", pngSignature + pngResolution(~0U, ~0U, 1),
         facts(false, QSizeF(4294967295.0, 4294967295.0))},
        {"after the end", pngSignature + end + pngResolution(11811, 5906, 1), facts(true)},
        {"inside a chunk", pngSignature + pngChunk("tEXt", end), {}},
        {"huge chunk", pngSignature + bigEndian(~0U) + "tEXt" + end, {}},
        {"other chunks", pngSignature + pngChunk("tEXt", "a") + pngChunk("IDAT", "b") + end, facts(true)},
    };
    for (const Row &row : rows)
        expectFacts(pngFacts(row.png), row.expected, row.name);
}

TEST(ImageFacts, OfJpegs)
{
    const QByteArray scan = jpegSegment('\xDA', QByteArray(10, 0));
    struct Row {
        const char *name;
        QByteArray jpeg;
        ImageFacts expected;
    };
    const Row rows[] = {
        {"empty", {}, {}},
        {"start", jpegStart, {}},
        {"end", jpegStart + jpegEnd, facts(true)},
        {"half an end", jpegStart + jpegEnd.chopped(1), {}},
        {"per inch", jpegStart + jfif(1, 300, 150), facts(false, QSizeF(11811.02, 5905.51))},
        {"per centimetre", jpegStart + jfif(2, 100, 50), facts(false, QSizeF(10000, 5000))},
        {"shape only", jpegStart + jfif(0, 1, 2), {}},
        {"unknown unit", jpegStart + jfif(3, 1, 2), {}},
        {"no dots", jpegStart + jfif(1, 300, 0), {}},
        {"other application", jpegStart + jpegSegment('\xE0', "JFXX"), {}},
        {"gray", jpegStart + frame('\xC0', 8, 1), facts(false, std::nullopt, 1)},
        {"colour", jpegStart + frame('\xC1', 8, 3), facts(false, std::nullopt, 3)},
        {"progressive", jpegStart + frame('\xC2', 8, 3), facts(false, std::nullopt, 3)},
        {"lossless", jpegStart + frame('\xC3', 8, 3), {}},
        {"four colours", jpegStart + frame('\xC0', 8, 4), {}},
        {"12 bits", jpegStart + frame('\xC1', 12, 3), {}},
        {"filled", jpegStart + QByteArray(9, '\xFF') + jpegEnd.sliced(1), facts(true)},
        {"no marker", jpegStart + "x" + jpegEnd, {}},
        {"length 1", jpegStart + QByteArray("\xFF\xE1\0\1", 4) + jpegEnd, {}},
        {"length 2", jpegStart + QByteArray("\xFF\xE1\0\2", 4) + jpegEnd, facts(true)},
        {"end inside a segment", jpegStart + jpegSegment('\xE1', jpegEnd), {}},
        {"segment beyond the end", jpegStart + QByteArray("\xFF\xE1\xFF\xFF", 4) + jpegEnd, {}},
        {"scan",
         jpegStart + scan +
             QByteArray("a\xFF\0b\xFF\xD0"
                        "c\xFF\xD7",
                        8) +
             jpegEnd,
         facts(true)},
        {"scan without an end",
         jpegStart + scan +
             QByteArray("a\xFF\0b\xFF\xD0"
                        "c\xFF",
                        8),
         {}},
    };
    for (const Row &row : rows)
        expectFacts(jpegFacts(row.jpeg), row.expected, row.name);
}

TEST(ImageFacts, OfATruncatedFileAreIncomplete)
{
    const QByteArray png = pngSignature + pngResolution(11811, 11811, 1) + pngChunk("IEND", {});
    for (qsizetype size = 0; size < png.size(); ++size)
        EXPECT_FALSE(pngFacts(png.first(size)).complete) << size;
    const QByteArray jpeg = jpegStart + jfif(1, 300, 300) + frame('\xC0', 8, 3) + jpegEnd;
    for (qsizetype size = 0; size < jpeg.size(); ++size)
        EXPECT_FALSE(jpegFacts(jpeg.first(size)).complete) << size;
}
