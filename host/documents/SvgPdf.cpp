// SPDX-License-Identifier: Apache-2.0
#include "SvgPdf.h"

#include "ConverterProgram.h"
#include "PdfPages.h"
#include "SvgSource.h"

#include <QCoreApplication>

namespace host {
inline namespace documents {

namespace {

struct SvgPdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

constexpr double pointsPerPixel = 72.0 / 96.0;

DocumentErrorReason damagedSvg()
{
    return {DocumentErrorKind::Damaged, SvgPdfText::tr("the SVG is damaged")};
}

/// Writes what the converter has written: a line with the size of the page, in points, and the PDF.
Result<void, DocumentErrorReason> storeOutput(const QByteArray &output, QIODevice *pdf)
{
    const qsizetype lineEnd = output.indexOf('\n');
    const QByteArrayList size = output.first(qMax(qsizetype(0), lineEnd)).split(' ');
    if (size.size() != 2)
        return damagedSvg();
    if (auto checked = PdfPages::checkSize({size[0].toDouble(), size[1].toDouble()}, 0); !checked)
        return checked;
    return storePdf(QByteArrayView(output).sliced(lineEnd + 1), pdf);
}

} // namespace

Result<void, DocumentErrorReason> writeSvgPdf(const QByteArray &svg, QIODevice *pdf)
{
    const auto source = SvgSource::read(svg);
    if (!source)
        return source.error();
    QStringList arguments;
    if (const auto &size = source.value().size) {
        if (auto checked = PdfPages::checkSize(*size * pointsPerPixel, 0); !checked)
            return checked;
        arguments = {QString::number(size->width(), 'g', 17), QString::number(size->height(), 'g', 17)};
    }
    ConverterProgram converter(QStringLiteral("svgpdf"));
    switch (converter.run(arguments, source.value().content)) {
    case ConverterProgram::End::Converted:
        return storeOutput(converter.output(), pdf);
    case ConverterProgram::End::Forbidden:
        return ConverterProgram::forbidden();
    case ConverterProgram::End::WrongPassword:
    case ConverterProgram::End::Canceled:
    case ConverterProgram::End::Rejected:
        return damagedSvg();
    case ConverterProgram::End::TooLarge:
        return SvgSource::tooManyParts();
    case ConverterProgram::End::Missing:
        break;
    }
    return converter.missing();
}

} // namespace documents
} // namespace host
