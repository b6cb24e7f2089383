// SPDX-License-Identifier: Apache-2.0
#include "ImagePdf.h"

#include "ConverterProgram.h"
#include "PdfPages.h"

#include <QCoreApplication>

namespace host {
inline namespace documents {

namespace {

struct ImagePdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// The first line of the converter's output, in words, and the PDF after it.
struct ImageOutput {
    QByteArrayList words;
    QByteArrayView pdf;

    bool isAbout(const char *word, qsizetype numbers) const
    {
        return words.size() == numbers + 1 && words.front() == word;
    }
};

ImageOutput parsed(const QByteArray &output)
{
    const qsizetype lineEnd = output.indexOf('\n');
    if (lineEnd < 0)
        return {};
    return {output.first(lineEnd).split(' '), QByteArrayView(output).sliced(lineEnd + 1)};
}

DocumentErrorReason damaged(const ImageOutput &output)
{
    return {DocumentErrorKind::Damaged, output.isAbout("incomplete", 0)
                                            ? ImagePdfText::tr("the end of the image is missing")
                                            : ImagePdfText::tr("the image is damaged")};
}

DocumentErrorReason tooLarge(const ImageOutput &output)
{
    if (!output.isAbout("pixels", 2))
        return {DocumentErrorKind::TooLarge, ImagePdfText::tr("there is not enough memory")};
    return {DocumentErrorKind::TooLarge, ImagePdfText::tr("it has %1 × %2 pixels, more than can be printed")
                                             .arg(output.words[1].toInt())
                                             .arg(output.words[2].toInt())};
}

} // namespace

Result<void, DocumentErrorReason> writeImagePdf(const QByteArray &image, DocumentKind kind, QIODevice *pdf)
{
    ConverterProgram converter(QStringLiteral("imagepdf"));
    const auto end =
        converter.run({kind == DocumentKind::Png ? QStringLiteral("png") : QStringLiteral("jpeg")}, image);
    const ImageOutput output = parsed(converter.output());
    switch (end) {
    case ConverterProgram::End::Converted:
        break;
    case ConverterProgram::End::Missing:
        return converter.missing();
    case ConverterProgram::End::Forbidden:
        return ConverterProgram::forbidden();
    case ConverterProgram::End::TooLarge:
        return tooLarge(output);
    default:
        return damaged(output);
    }
    if (!output.isAbout("size", 2))
        return damaged(output);
    if (auto checked = PdfPages::checkSize({output.words[1].toDouble(), output.words[2].toDouble()}, 0);
        !checked)
        return checked;
    return storePdf(output.pdf, pdf);
}

} // namespace documents
} // namespace host
