// SPDX-License-Identifier: Apache-2.0
#include "DocumentKind.h"

namespace host {
inline namespace documents {

namespace {

bool looksLikeXml(const QByteArray &head)
{
    // With a mark of its encoding or without; in two bytes a character, the other one is null.
    for (const QByteArray &mark :
         {QByteArray("\xEF\xBB\xBF"), QByteArray("\xFF\xFE"), QByteArray("\xFE\xFF")}) {
        if (head.startsWith(mark))
            return looksLikeXml(head.mid(mark.size()));
    }
    QByteArray text = head;
    return text.replace('\0', QByteArray()).trimmed().startsWith('<');
}

} // namespace

std::optional<DocumentKind> documentKind(const QByteArray &head)
{
    const QByteArray pdfMark = "%PDF-";
    if (head.startsWith(pdfMark))
        return DocumentKind::Pdf;
    if (head.startsWith("\x89PNG\r\n\x1A\n"))
        return DocumentKind::Png;
    if (head.startsWith("\xFF\xD8\xFF"))
        return DocumentKind::Jpeg;
    if (looksLikeXml(head))
        return DocumentKind::Svg;
    if (head.left(documentHeadSize).contains(pdfMark))
        return DocumentKind::Pdf;
    return std::nullopt;
}

} // namespace documents
} // namespace host
