// SPDX-License-Identifier: Apache-2.0
#include "DecryptedPdf.h"

#include "ConverterProgram.h"
#include "StandardInput.h"

#include <QCoreApplication>

namespace host {
inline namespace documents {

namespace {

struct DecryptedPdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

} // namespace

Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> decryptPdf(const QString &path,
                                                                                 const QString &password)
{
    auto file = makeTemporaryFile();
    if (!file)
        return file;
    ConverterProgram converter(QStringLiteral("decryptpdf"));
    converter.setSecret(password.toUtf8());
    switch (converter.runOnFiles({}, path, file.value()->fileName(), [] { return false; })) {
    case ConverterProgram::End::Converted:
        return file;
    case ConverterProgram::End::WrongPassword:
        return DocumentErrorReason{DocumentErrorKind::WrongPassword,
                                   DecryptedPdfText::tr("the password is wrong")};
    case ConverterProgram::End::Missing:
        return converter.missing();
    case ConverterProgram::End::Forbidden:
        return ConverterProgram::forbidden();
    case ConverterProgram::End::TooLarge:
        return DocumentErrorReason{DocumentErrorKind::TooLarge,
                                   DecryptedPdfText::tr("decrypting it needs too much memory or time")};
    case ConverterProgram::End::Canceled:
    case ConverterProgram::End::Rejected:
        break;
    }
    return DocumentErrorReason{DocumentErrorKind::Damaged, DecryptedPdfText::tr("the PDF is damaged")};
}

} // namespace documents
} // namespace host
