// SPDX-License-Identifier: Apache-2.0
#include "OpenedDocument.h"

#include "DecryptedPdf.h"
#include "DocumentKind.h"
#include "ImagePdf.h"
#include "StandardInput.h"
#include "SvgPdf.h"

#include <QCoreApplication>
#include <QLocale>

namespace host {
inline namespace documents {

namespace {

struct OpenedDocumentText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

Result<QByteArray, DocumentErrorReason> readWhole(QFile &file, qint64 most)
{
    if (file.size() > most)
        return DocumentErrorReason{
            DocumentErrorKind::TooLarge,
            OpenedDocumentText::tr("it is larger than %1").arg(QLocale().formattedDataSize(most))};
    // Limited to the size of the file: reading allocates as much memory as is requested.
    QByteArray content = file.read(file.size());
    if (file.error() != QFileDevice::NoError)
        return DocumentErrorReason{DocumentErrorKind::Unreadable, file.errorString()};
    return content;
}

/// Turns an image or an SVG into a PDF.
Result<void, DocumentErrorReason> convert(QFile &file, DocumentKind kind, platform::TemporaryFile &pdf)
{
    const bool isSvg = kind == DocumentKind::Svg;
    const auto content = readWhole(file, isSvg ? OpenedDocument::maxSvgBytes : OpenedDocument::maxImageBytes);
    if (!content)
        return content.error();
    auto converted = isSvg ? writeSvgPdf(content.value(), &pdf) : writeImagePdf(content.value(), kind, &pdf);
    if (converted ? !pdf.flush() : converted.error().kind == DocumentErrorKind::NotStored)
        return notStored(pdf);
    return converted;
}

} // namespace

Result<std::unique_ptr<OpenedDocument>, DocumentErrorReason>
OpenedDocument::open(const QString &name, const std::shared_ptr<RendererProcess> &renderer,
                     const DocumentPasswordSource &askPassword)
{
    std::unique_ptr<OpenedDocument> document(new OpenedDocument);
    document->m_path = name;
    if (name == standardInputName) {
        auto input = readStandardInput();
        if (!input)
            return input.error();
        document->m_temporary = std::move(input).value();
        document->m_path = document->m_temporary->fileName();
    }
    auto file = openRegularFile(document->m_path);
    if (!file)
        return file.error();
    const std::optional<DocumentKind> kind = documentKind(file.value().file->peek(documentHeadSize));
    if (!kind)
        return DocumentErrorReason{DocumentErrorKind::UnknownKind,
                                   OpenedDocumentText::tr("it is not a PDF, PNG, JPEG or SVG file")};
    if (*kind != DocumentKind::Pdf) {
        auto pdf = makeTemporaryFile();
        if (!pdf)
            return pdf.error();
        if (const auto converted = convert(*file.value().file, *kind, *pdf.value()); !converted)
            return converted.error();
        file = document->replaceBy(std::move(pdf).value());
        if (!file)
            return file.error();
    }
    auto opened = document->openPages(std::move(file).value(), renderer);
    if (!opened && opened.error().kind == DocumentErrorKind::Encrypted && askPassword)
        opened = document->openDecrypted(opened.error(), name, renderer, askPassword);
    if (!opened)
        return opened.error();
    return document;
}

Result<RegularFile, DocumentErrorReason>
OpenedDocument::replaceBy(std::unique_ptr<platform::TemporaryFile> pdf)
{
    m_temporary = std::move(pdf);
    m_path = m_temporary->fileName();
    return openRegularFile(m_path);
}

Result<void, DocumentErrorReason> OpenedDocument::openPages(RegularFile file,
                                                            const std::shared_ptr<RendererProcess> &renderer)
{
    m_stamp = file.stamp;
    auto pages = PdfPages::open(std::move(file.file), renderer);
    if (!pages)
        return pages.error();
    m_pages = std::move(pages).value();
    return {};
}

Result<void, DocumentErrorReason>
OpenedDocument::openDecrypted(const DocumentErrorReason &reason, const QString &name,
                              const std::shared_ptr<RendererProcess> &renderer,
                              const DocumentPasswordSource &askPassword)
{
    PasswordRound round = PasswordRound::First;
    while (const std::optional<QString> password = askPassword(name, round)) {
        auto decrypted = decryptPdf(m_path, *password);
        if (decrypted) {
            auto file = replaceBy(std::move(decrypted).value());
            return file ? openPages(std::move(file).value(), renderer) : file.withoutValue();
        }
        if (decrypted.error().kind != DocumentErrorKind::WrongPassword)
            return decrypted.error();
        round = PasswordRound::Again;
    }
    return reason;
}

std::unique_ptr<OpenedDocument> OpenedDocument::openAgain(PdfSource source,
                                                          const std::shared_ptr<RendererProcess> &renderer)
{
    std::unique_ptr<OpenedDocument> document(new OpenedDocument);
    document->m_pages = PdfPages::openAgain(std::move(source), renderer);
    return document;
}

PdfSource OpenedDocument::source() const
{
    auto file = openRegularFile(m_path);
    const bool isSame = file && file.value().stamp == m_stamp;
    return {isSame ? std::move(file.value().file) : nullptr, m_pages->knownSizes()};
}

Result<void, DocumentErrorReason> OpenedDocument::checkForPrinting() const
{
    if (fileStamp(m_path) != m_stamp)
        return DocumentErrorReason{
            DocumentErrorKind::Changed,
            OpenedDocumentText::tr("the file has changed since it was opened; open it again")};
    return m_pages->checkPages();
}

} // namespace documents
} // namespace host
