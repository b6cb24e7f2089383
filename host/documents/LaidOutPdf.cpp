// SPDX-License-Identifier: Apache-2.0
#include "LaidOutPdf.h"

#include "ConverterProgram.h"
#include "StandardInput.h"

#include <QCoreApplication>

namespace host {
inline namespace documents {

namespace {

struct LaidOutPdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

} // namespace

Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason>
layOutPdf(const QString &path, const PageLayout &layout, const std::function<bool()> &isCanceled)
{
    auto made = makeTemporaryFile();
    if (!made)
        return made.error();
    std::unique_ptr<platform::TemporaryFile> file = std::move(made).value();
    ConverterProgram converter(QStringLiteral("layoutpdf"));
    switch (converter.runOnFiles(layout.arguments(), path, file->fileName(), isCanceled)) {
    case ConverterProgram::End::Converted:
        return file->size() > 0 ? std::move(file) : nullptr;
    case ConverterProgram::End::Canceled:
        return std::unique_ptr<platform::TemporaryFile>();
    case ConverterProgram::End::Missing:
        return converter.missing();
    case ConverterProgram::End::TooLarge:
        return DocumentErrorReason{
            DocumentErrorKind::TooLarge,
            LaidOutPdfText::tr("laying its pages out on labels needs too much memory or time")};
    case ConverterProgram::End::Forbidden:
        return ConverterProgram::forbidden();
    case ConverterProgram::End::WrongPassword:
    case ConverterProgram::End::Rejected:
        break;
    }
    return DocumentErrorReason{
        DocumentErrorKind::Damaged,
        LaidOutPdfText::tr("its pages cannot be laid out on labels; the PDF is damaged")};
}

} // namespace documents
} // namespace host
