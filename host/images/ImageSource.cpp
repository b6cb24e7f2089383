// SPDX-License-Identifier: Apache-2.0
#include "ImageSource.h"

#include <host/base/Length.h>

namespace host {
inline namespace images {

namespace {

/// The memory that Qt's readers allocate at most for one image: 32 million pixels of four bytes.
constexpr qint64 maxDecodedBytes = 128LL * 1024 * 1024;

/// Composes the image on white and compresses its rows, without padding: one byte for each pixel if all
/// pixels are gray, otherwise three.
PdfImage compressed(QImage image)
{
    const bool transparent = image.hasAlphaChannel();
    image.convertTo(transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const bool gray = image.allGray();
    PdfImage result{image.size(), gray ? 1 : 3, QByteArrayLiteral("/FlateDecode"), {}};
    QByteArray rows(static_cast<qsizetype>(image.width()) * image.height() * result.colors,
                    Qt::Uninitialized);
    char *to = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        const QRgb *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = transparent ? qAlpha(line[x]) : 255;
            const auto onWhite = [alpha](int color) {
                return static_cast<char>((color * alpha + 127) / 255 + 255 - alpha);
            };
            *to++ = onWhite(qRed(line[x]));
            if (!gray) {
                *to++ = onWhite(qGreen(line[x]));
                *to++ = onWhite(qBlue(line[x]));
            }
        }
    }
    image = QImage();
    // qCompress() puts the length before the data. Level 1 is fast: the user waits for the page.
    result.data = qCompress(rows, 1).mid(4);
    return result;
}

} // namespace

ImageSource::ImageSource(const QByteArray &content, const QByteArray &format)
    : m_content(content)
    , m_facts(format == "png" ? pngFacts(content) : jpegFacts(content))
    , m_reader(&m_buffer, format)
{
    m_buffer.setData(content);
    m_buffer.open(QIODevice::ReadOnly);
    m_reader.setAutoTransform(true);
}

void ImageSource::load(const QByteArray &format)
{
    QBuffer empty;
    empty.open(QIODevice::ReadOnly);
    // The plug-in of the format is loaded by the first reader that looks at a file.
    static_cast<void>(QImageReader(&empty, format).canRead());
}

Result<void, ImageFault> ImageSource::check()
{
    if (!m_facts.complete)
        return ImageFault::Incomplete;
    m_size = m_reader.size();
    if (m_size.isEmpty())
        return ImageFault::Damaged;
    const qint64 count = static_cast<qint64>(m_size.width()) * m_size.height();
    const int bits = QImage::toPixelFormat(m_reader.imageFormat()).bitsPerPixel();
    if (count > maxImagePixels || (!fitsAsItIs() && count * bits / 8 > maxDecodedBytes))
        return ImageFault::TooManyPixels;
    return {};
}

QSizeF ImageSource::pageSize() const
{
    const double usual = defaultImageResolution / metresPerInch;
    const QSizeF resolution = m_facts.resolution.value_or(QSizeF(usual, usual));
    const QSizeF size(Points(Metres(m_size.width() / resolution.width())).number(),
                      Points(Metres(m_size.height() / resolution.height())).number());
    return isTurned() ? size.transposed() : size;
}

std::optional<PdfImage> ImageSource::read()
{
    if (fitsAsItIs())
        return asItIs();
    const QImage image = m_reader.read();
    if (image.isNull())
        return std::nullopt;
    return compressed(image);
}

bool ImageSource::fitsAsItIs() const
{
    return m_facts.pdfColors && m_reader.transformation() == QImageIOHandler::TransformationNone;
}

bool ImageSource::isTurned() const
{
    return m_reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

std::optional<PdfImage> ImageSource::asItIs()
{
    // The JPEG's data, unchanged. Decoding at an eighth of the size is fast and shows whether it is damaged.
    constexpr int part = 8;
    m_reader.setScaledSize((m_size / part).expandedTo({1, 1}));
    if (m_reader.read().isNull())
        return std::nullopt;
    return PdfImage{m_size, *m_facts.pdfColors, QByteArrayLiteral("/DCTDecode"), m_content};
}

} // namespace images
} // namespace host
