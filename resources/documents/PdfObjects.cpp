// SPDX-License-Identifier: Apache-2.0
#include "PdfObjects.h"

#include <QRegularExpression>

namespace documents {

namespace {

QByteArray tableEntry(qsizetype offset)
{
    return QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
}

/// One place where bytes were replaced by more or fewer.
struct Shift {
    qsizetype offset;
    qsizetype growth;
};

qsizetype shifted(qsizetype offset, const QList<Shift> &shifts)
{
    qsizetype result = offset;
    for (const Shift &shift : shifts) {
        if (shift.offset < offset)
            result += shift.growth;
    }
    return result;
}

/// The table of objects and the place of the table, moved with the objects.
QByteArray movedTable(const QByteArray &table, const QList<Shift> &shifts)
{
    static const QRegularExpression entry(QStringLiteral("(\\d{10}) 00000 n"));
    QString text = QString::fromLatin1(table);
    for (QRegularExpressionMatchIterator matches = entry.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype offset = shifted(match.captured(1).toLongLong(), shifts);
        text.replace(match.capturedStart(1), 10, QString::number(offset).rightJustified(10, u'0'));
    }
    static const QRegularExpression start(QStringLiteral("startxref\\s+(\\d+)"));
    const QRegularExpressionMatch match = start.match(text);
    const qsizetype offset = shifted(match.captured(1).toLongLong(), shifts);
    text.replace(match.capturedStart(1), match.capturedLength(1), QString::number(offset));
    return text.toLatin1();
}

} // namespace

QByteArray pdfFile(const QByteArrayList &objects, const QByteArray &trailerEntries)
{
    QByteArray file = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    QByteArray table = "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (qsizetype index = 0; index < objects.size(); ++index) {
        table += tableEntry(file.size());
        file += QByteArray::number(index + 1) + " 0 obj\n" + objects.at(index) + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(file.size());
    return file + table + "trailer\n<< /Size " + QByteArray::number(objects.size() + 1) + " /Root 1 0 R" +
           trailerEntries + " >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray pdfStream(const QByteArray &content)
{
    return "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content + "\nendstream";
}

QByteArray withPageSizes(const QByteArray &pdf, const QList<QSizeF> &sizes)
{
    const QByteArray key = "/MediaBox [";
    const qsizetype table = pdf.lastIndexOf("\nxref") + 1;
    QByteArray body;
    QList<Shift> shifts;
    qsizetype taken = 0;
    for (const QSizeF &size : sizes) {
        const qsizetype found = pdf.indexOf(key, taken);
        if (found < 0)
            break;
        const qsizetype end = pdf.indexOf(']', found);
        const QByteArray box = key + "0 0 " + QByteArray::number(size.width(), 'f', 2) + ' ' +
                               QByteArray::number(size.height(), 'f', 2);
        body += pdf.mid(taken, found - taken) + box;
        shifts.append({found, box.size() - (end - found)});
        taken = end;
    }
    body += pdf.mid(taken, table - taken);
    return body + movedTable(pdf.mid(table), shifts);
}

} // namespace documents
