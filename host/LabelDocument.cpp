// SPDX-License-Identifier: Apache-2.0
#include "LabelDocument.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>

#include <optional>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::LabelDocument)
};

DocumentError failure(DocumentFailure kind, const QString &path, const QString &reason)
{
    return {kind, Text::tr("Cannot open the document \"%1\": %2").arg(path, reason)};
}

std::optional<DocumentError> openFile(QFile &file)
{
    const QFileInfo info(file.fileName());
    if (!info.exists())
        return failure(DocumentFailure::Missing, file.fileName(), Text::tr("there is no such file"));
    if (!info.isFile())
        return failure(DocumentFailure::NotAFile, file.fileName(), Text::tr("it is not a file"));
    if (!file.open(QIODevice::ReadOnly))
        return failure(DocumentFailure::Unreadable, file.fileName(), file.errorString());
    if (file.size() == 0)
        return failure(DocumentFailure::Empty, file.fileName(), Text::tr("it is empty"));
    return std::nullopt;
}

std::optional<DocumentError> loadingError(const QString &path, QPdfDocument::Error error)
{
    switch (error) {
    case QPdfDocument::Error::None:
        return std::nullopt;
    case QPdfDocument::Error::IncorrectPassword:
        return failure(DocumentFailure::Encrypted, path,
                       Text::tr("it is encrypted; remove its password first"));
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return failure(DocumentFailure::Encrypted, path,
                       Text::tr("it is encrypted in a way that is not known here"));
    default:
        return failure(DocumentFailure::NotAPdf, path, Text::tr("it is no PDF, or a damaged one"));
    }
}

std::optional<DocumentError> checkPages(const LabelDocument &document)
{
    if (document.pageCount() < 1)
        return failure(DocumentFailure::Empty, document.path(), Text::tr("it has no pages"));
    for (int page = 0; page < document.pageCount(); ++page) {
        const QSizeF size = document.pageSize(page);
        // Written so that a size that is no number fails too.
        if (!(size.width() >= 1.0 && size.height() >= 1.0))
            return failure(DocumentFailure::BadPage, document.path(),
                           Text::tr("page %1 has no area").arg(page + 1));
        if (!(size.width() <= LabelDocument::longestSide && size.height() <= LabelDocument::longestSide))
            return failure(DocumentFailure::BadPage, document.path(),
                           Text::tr("page %1 is longer than %2 m")
                               .arg(page + 1)
                               .arg(LabelDocument::longestSide / 72.0 * 0.0254, 0, 'f', 2));
    }
    return std::nullopt;
}

} // namespace

LabelDocument::LabelDocument(const QString &path)
    : m_path(path)
    , m_file(path)
{
}

Result<std::unique_ptr<LabelDocument>, DocumentError> LabelDocument::open(const QString &path)
{
    std::unique_ptr<LabelDocument> document(new LabelDocument(path));
    if (const std::optional<DocumentError> error = openFile(document->m_file))
        return *error;
    document->m_pdf.load(&document->m_file);
    if (const std::optional<DocumentError> error = loadingError(path, document->m_pdf.error()))
        return *error;
    if (const std::optional<DocumentError> error = checkPages(*document))
        return *error;
    return document;
}

QImage LabelDocument::render(int page, QSize size) const
{
    // A PDF page is transparent where nothing is drawn; labels are white there.
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(QPoint(), m_pdf.render(page, size));
    return image;
}

} // namespace host
