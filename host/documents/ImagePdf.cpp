// SPDX-License-Identifier: Apache-2.0
#include "ImagePdf.h"

#include "ConverterProgram.h"
#include "ImageFacts.h"
#include "PdfPages.h"

#include <host/base/Length.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

namespace host {
inline namespace documents {

namespace {

struct ImagePdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// The memory that Qt's readers allocate at most for one image: 32 million pixels of four bytes.
constexpr qint64 maxDecodedBytes = 128LL * 1024 * 1024;

/// An image in a form that a PDF can contain.
struct PdfImage {
    QSize pixels;
    /// 1 for gray, 3 for red, green and blue.
    int colors = 3;
    /// How the data is compressed, by the name that PDF has for it.
    QString filter;
    QByteArray data;
};

DocumentErrorReason damaged()
{
    return {DocumentErrorKind::Damaged, ImagePdfText::tr("the image is damaged")};
}

DocumentErrorReason tooManyPixels(QSize size)
{
    return {DocumentErrorKind::TooLarge, ImagePdfText::tr("it has %1 × %2 pixels, more than can be printed")
                                             .arg(size.width())
                                             .arg(size.height())};
}

/// Composes the image on white and compresses its rows, without padding: one byte for each pixel if all
/// pixels are gray, otherwise three.
PdfImage compressed(QImage image)
{
    const bool transparent = image.hasAlphaChannel();
    image.convertTo(transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const bool gray = image.allGray();
    PdfImage result{image.size(), gray ? 1 : 3, QStringLiteral("/FlateDecode"), {}};
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

/// Writes the page to the device. The size is in points.
Result<void, DocumentErrorReason> writePage(const PdfImage &image, QSizeF size, QIODevice *pdf)
{
    ConverterProgram converter(QStringLiteral("imagepdf"));
    const auto end =
        converter.run({QString::number(image.pixels.width()), QString::number(image.pixels.height()),
                       QString::number(image.colors), image.filter, QString::number(size.width(), 'f', 4),
                       QString::number(size.height(), 'f', 4)},
                      image.data);
    switch (end) {
    case ConverterProgram::End::Converted:
        return storePdf(converter.output(), pdf);
    case ConverterProgram::End::Missing:
        return converter.missing();
    case ConverterProgram::End::TooLarge:
        return tooManyPixels(image.pixels);
    case ConverterProgram::End::Forbidden:
        return ConverterProgram::forbidden();
    case ConverterProgram::End::WrongPassword:
    case ConverterProgram::End::Canceled:
    case ConverterProgram::End::Rejected:
        break;
    }
    return damaged();
}

/// Reads an image and converts it to the form in which its page contains it.
class ImageSource {
public:
    ImageSource(const QByteArray &content, DocumentKind kind)
        : m_content(content)
        , m_facts(kind == DocumentKind::Png ? pngFacts(content) : jpegFacts(content))
        , m_reader(&m_buffer, kind == DocumentKind::Png ? "png" : "jpeg")
    {
        m_buffer.setData(content);
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setAutoTransform(true);
    }

    Result<void, DocumentErrorReason> check()
    {
        if (!m_facts.complete)
            return DocumentErrorReason{DocumentErrorKind::Damaged,
                                       ImagePdfText::tr("the end of the image is missing")};
        m_size = m_reader.size();
        if (m_size.isEmpty())
            return damaged();
        const qint64 pixels = static_cast<qint64>(m_size.width()) * m_size.height();
        const int bits = QImage::toPixelFormat(m_reader.imageFormat()).bitsPerPixel();
        if (pixels > maxImagePixels || (!fitsAsItIs() && pixels * bits / 8 > maxDecodedBytes))
            return tooManyPixels(m_size);
        return PdfPages::checkSize(pageSize(), 0);
    }

    /// The size of the page in points, after the rotation that the image's metadata requests.
    QSizeF pageSize() const
    {
        const double usual = defaultImageResolution / metresPerInch;
        const QSizeF resolution = m_facts.resolution.value_or(QSizeF(usual, usual));
        const QSizeF size(Points(Metres(m_size.width() / resolution.width())).number(),
                          Points(Metres(m_size.height() / resolution.height())).number());
        return isTurned() ? size.transposed() : size;
    }

    std::optional<PdfImage> read()
    {
        if (fitsAsItIs())
            return asItIs();
        const QImage image = m_reader.read();
        if (image.isNull())
            return std::nullopt;
        return compressed(image);
    }

private:
    bool fitsAsItIs() const
    {
        return m_facts.pdfColors && m_reader.transformation() == QImageIOHandler::TransformationNone;
    }

    bool isTurned() const
    {
        return m_reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }

    /// The JPEG's data, unchanged. Decoding at an eighth of the size is fast and shows whether it is damaged.
    std::optional<PdfImage> asItIs()
    {
        constexpr int part = 8;
        m_reader.setScaledSize((m_size / part).expandedTo({1, 1}));
        if (m_reader.read().isNull())
            return std::nullopt;
        return PdfImage{m_size, *m_facts.pdfColors, QStringLiteral("/DCTDecode"), m_content};
    }

    const QByteArray &m_content;
    ImageFacts m_facts;
    QBuffer m_buffer;
    QImageReader m_reader;
    QSize m_size;
};

} // namespace

Result<void, DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf)
{
    ImageSource source(image, kind);
    if (auto checked = source.check(); !checked)
        return checked;
    const std::optional<PdfImage> page = source.read();
    if (!page)
        return damaged();
    return writePage(*page, source.pageSize(), pdf);
}

} // namespace documents
} // namespace host
