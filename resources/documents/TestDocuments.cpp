// SPDX-License-Identifier: Apache-2.0
#include "TestDocuments.h"

#include "LabelDocument.h"
#include "PdfFile.h"

#include <QPainter>

namespace documents {

namespace {

/// A bar 4 mm from both ends of the label, and another across it at the beginning: which way round a label
/// lies can be seen.
void drawMark(QPainter &painter, double length)
{
    const double end = length * LabelDocument::unitsPerMillimetre - 40.0;
    painter.fillRect(QRectF(40.0, 100.0, end - 40.0, 30.0), Qt::black);
    painter.fillRect(QRectF(40.0, 40.0, 30.0, 90.0), Qt::black);
}

void addMarkedLabel(LabelDocument &document, double length)
{
    document.addLabel({24.0, length}, [length](QPainter &painter) { drawMark(painter, length); });
}

QByteArray blankInTheMiddle()
{
    LabelDocument document(QStringLiteral("A blank label between two"));
    addMarkedLabel(document, 60.0);
    document.addBlankLabel({24.0, 60.0});
    addMarkedLabel(document, 60.0);
    return document.pdf();
}

QByteArray mixedLengths()
{
    LabelDocument document(QStringLiteral("Labels of several lengths"));
    for (const double length : {40.0, 60.0, 100.0, 25.0})
        addMarkedLabel(document, length);
    return document.pdf();
}

} // namespace

std::vector<TestDocument> testDocuments()
{
    const QByteArray whole = mixedLengths();
    return {
        {QStringLiteral("encrypted.pdf"), encryptedLabel("labels")},
        {QStringLiteral("truncated.pdf"), whole.left(whole.size() / 2)},
        {QStringLiteral("empty.pdf"), {}},
        {QStringLiteral("notpdf.pdf"), "Dear printer,\n\nthis is a letter and not a document of labels.\n"},
        {QStringLiteral("zero-pages.pdf"), pdfWithoutPages()},
        {QStringLiteral("blank-page.pdf"), blankInTheMiddle()},
        {QStringLiteral("mixed-lengths.pdf"), whole},
    };
}

} // namespace documents
