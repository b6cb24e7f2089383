// SPDX-License-Identifier: Apache-2.0
#include "ImagePdf.h"

#include "ImageFacts.h"
#include "PdfPages.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

#include <vector>

namespace host {
inline namespace documents {

namespace {

struct ImagePdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

constexpr double pointsPerMetre = 72.0 / 0.0254;
/// What image readers allot to one image: 32 million pixels of four bytes.
constexpr qint64 maxDecodedBytes = 128LL * 1024 * 1024;

/// An image in one of the forms that a PDF can hold.
struct PdfImage {
    QSize pixels;
    /// 1 for grey, 3 for red, green and blue.
    int colors = 3;
    QByteArray filter;
    QByteArray data;
};

DocumentErrorReason damaged()
{
    return {DocumentErrorKind::Damaged, ImagePdfText::tr("it is a damaged image")};
}

DocumentErrorReason tooManyPixels(QSize size)
{
    return {DocumentErrorKind::TooLarge, ImagePdfText::tr("it has %1 × %2 pixels, more than can be printed")
                                             .arg(size.width())
                                             .arg(size.height())};
}

/// The image's rows without gaps, on white; one byte a pixel when nothing is coloured.
PdfImage compressed(QImage image)
{
    const bool transparent = image.hasAlphaChannel();
    image.convertTo(transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const bool grey = image.allGray();
    PdfImage result{image.size(), grey ? 1 : 3, "/FlateDecode", {}};
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
            if (!grey) {
                *to++ = onWhite(qGreen(line[x]));
                *to++ = onWhite(qBlue(line[x]));
            }
        }
    }
    image = QImage();
    // In front of the compressed data stands their length, which is not part of them.
    // Quickly rather than well: somebody waits for the page to be shown.
    result.data = qCompress(rows, 1).mid(4);
    return result;
}

/// Writes a PDF's objects and keeps where they begin.
class PdfObjects {
public:
    explicit PdfObjects(QIODevice *device)
        : m_device(device)
    {
        write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
    }

    void add(const QByteArray &dictionary, const QByteArray &stream = {})
    {
        m_offsets.push_back(m_written);
        write(QByteArray::number(static_cast<qlonglong>(m_offsets.size())) + " 0 obj\n<< " + dictionary);
        if (stream.isEmpty()) {
            write(" >>\nendobj\n");
            return;
        }
        write(" /Length " + QByteArray::number(stream.size()) + " >>\nstream\n");
        write(stream);
        write("\nendstream\nendobj\n");
    }

    /// False when the device did not take everything.
    bool finish()
    {
        const qint64 tableStart = m_written;
        const QByteArray count = QByteArray::number(static_cast<qlonglong>(m_offsets.size()) + 1);
        write("xref\n0 " + count + "\n0000000000 65535 f \n");
        for (const qint64 offset : m_offsets)
            write(QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n");
        write("trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" + QByteArray::number(tableStart) +
              "\n%%EOF\n");
        return m_good;
    }

private:
    void write(const QByteArray &bytes)
    {
        m_good = m_good && m_device->write(bytes) == bytes.size();
        m_written += bytes.size();
    }

    QIODevice *m_device;
    std::vector<qint64> m_offsets;
    qint64 m_written = 0;
    bool m_good = true;
};

bool writePage(const PdfImage &image, QSizeF points, QIODevice *pdf)
{
    const QByteArray width = QByteArray::number(points.width(), 'f', 4);
    const QByteArray height = QByteArray::number(points.height(), 'f', 4);
    const QByteArray drawing = "q " + width + " 0 0 " + height + " 0 0 cm /Image Do Q";
    PdfObjects objects(pdf);
    objects.add("/Type /Catalog /Pages 2 0 R");
    objects.add("/Type /Pages /Kids [3 0 R] /Count 1");
    objects.add("/Type /Page /Parent 2 0 R /MediaBox [0 0 " + width + ' ' + height +
                "] /Resources << /XObject << /Image 5 0 R >> >> /Contents 4 0 R");
    objects.add({}, drawing);
    objects.add("/Type /XObject /Subtype /Image /Width " + QByteArray::number(image.pixels.width()) +
                    " /Height " + QByteArray::number(image.pixels.height()) + " /BitsPerComponent 8" +
                    " /ColorSpace " + (image.colors == 1 ? "/DeviceGray" : "/DeviceRGB") + " /Filter " +
                    image.filter,
                image.data);
    return objects.finish();
}

/// Reads one image in the form in which its page will hold it.
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

    std::optional<DocumentErrorReason> check()
    {
        if (!m_facts.complete)
            return DocumentErrorReason{DocumentErrorKind::Damaged,
                                       ImagePdfText::tr("it is an image whose end is missing")};
        m_size = m_reader.size();
        if (m_size.isEmpty())
            return damaged();
        const qint64 pixels = static_cast<qint64>(m_size.width()) * m_size.height();
        const int bits = QImage::toPixelFormat(m_reader.imageFormat()).bitsPerPixel();
        if (pixels > maxImagePixels || (!fitsAsItIs() && pixels * bits / 8 > maxDecodedBytes))
            return tooManyPixels(m_size);
        return PdfPages::checkSize(pageSize(), 0);
    }

    /// In points, as one looks at it.
    QSizeF pageSize() const
    {
        const double usual = defaultImageResolution / 0.0254;
        const QSizeF resolution = m_facts.resolution.value_or(QSizeF(usual, usual));
        const QSizeF size(m_size.width() / resolution.width() * pointsPerMetre,
                          m_size.height() / resolution.height() * pointsPerMetre);
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
        return m_facts.pdfColors > 0 && m_reader.transformation() == QImageIOHandler::TransformationNone;
    }

    bool isTurned() const
    {
        return m_reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }

    /// A JPEG's own data. Whether they can be decoded is tried in an eighth of the size, which is quick.
    std::optional<PdfImage> asItIs()
    {
        constexpr int part = 8;
        m_reader.setScaledSize((m_size / part).expandedTo({1, 1}));
        if (m_reader.read().isNull())
            return std::nullopt;
        return PdfImage{m_size, m_facts.pdfColors, "/DCTDecode", m_content};
    }

    const QByteArray &m_content;
    ImageFacts m_facts;
    QBuffer m_buffer;
    QImageReader m_reader;
    QSize m_size;
};

} // namespace

std::optional<DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf)
{
    ImageSource source(image, kind);
    if (auto problem = source.check())
        return problem;
    const std::optional<PdfImage> page = source.read();
    if (!page)
        return damaged();
    if (!writePage(*page, source.pageSize(), pdf))
        return DocumentErrorReason{DocumentErrorKind::NotStored, pdf->errorString()};
    return std::nullopt;
}

} // namespace documents
} // namespace host
