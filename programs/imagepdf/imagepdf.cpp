// SPDX-License-Identifier: Apache-2.0
// Writes a PDF with one page that an image fills, in its natural size:
//
//     kvprint-imagepdf png|jpeg <image >page.pdf
//
// The first line of the output is "size WIDTH HEIGHT", the size of the page in points; the PDF follows unless
// a side of the page is longer than a PDF page can be. The exit status is 1 if the image is damaged, and 2 if
// it has too many pixels or needs too much memory or time; the reason is written to standard error, and the
// first line of the output may be "incomplete" or "pixels ACROSS DOWN". kvprint runs this program when it
// opens an image: a hostile image cannot harm it, and the libraries cost it no time at any other start.
#include "ImagePage.h"

#include <host/images/ImageSource.h>
#include <programs/conversion/Conversion.h>
#include <programs/sandbox/Sandbox.h>

#include <QCoreApplication>

#include <cstdio>
#include <vector>

namespace {

using programs::ConversionError;

/// What the process may use. The image, its pixels and the PDF are all in memory.
programs::SandboxRules rules()
{
    return {.seconds = 60, .bytes = std::size_t{2} << 30U, .readableFolders = {}};
}

ConversionError errorOf(host::ImageFault fault, QSize pixels)
{
    switch (fault) {
    case host::ImageFault::Incomplete:
        std::puts("incomplete");
        return {ConversionError::Damaged, "the end of the image is missing"};
    case host::ImageFault::TooManyPixels:
        std::printf("pixels %d %d\n", pixels.width(), pixels.height());
        return {ConversionError::TooLarge, "too many pixels"};
    case host::ImageFault::Damaged:
        break;
    }
    return {ConversionError::Damaged, "the image is damaged"};
}

void convert(const QByteArray &format)
{
    std::vector<unsigned char> data = programs::readStandardInput();
    const QByteArray content = QByteArray::fromRawData(reinterpret_cast<const char *>(data.data()),
                                                       static_cast<qsizetype>(data.size()));
    host::ImageSource source(content, format);
    if (const auto checked = source.check(); !checked)
        throw errorOf(checked.error(), source.pixels());
    std::optional<host::PdfImage> image = source.read();
    if (!image)
        throw errorOf(host::ImageFault::Damaged, {});
    const QSizeF size = source.pageSize();
    const std::string width = QByteArray::number(size.width(), 'f', 4).toStdString();
    const std::string height = QByteArray::number(size.height(), 'f', 4).toStdString();
    std::printf("size %s %s\n", width.c_str(), height.c_str());
    std::fflush(stdout);
    programs::writeImagePage({image->pixels.width(), image->pixels.height(), image->colors,
                              image->filter.toStdString(), width, height,
                              reinterpret_cast<unsigned char *>(image->data.data()),
                              static_cast<std::size_t>(image->data.size())});
    programs::flushStandardOutput();
}

} // namespace

int main(int argc, char **argv)
{
    return programs::runConversion("kvprint-imagepdf", [&] {
        constexpr int argumentCount = 2;
        const QByteArray format = argc == argumentCount ? argv[1] : "";
        if (format != "png" && format != "jpeg")
            throw ConversionError(ConversionError::Damaged, "the format must be \"png\" or \"jpeg\"");
        const QCoreApplication application(argc, argv);
        host::ImageSource::load(format);
        programs::enterSandbox(rules());
        convert(format);
    });
}
