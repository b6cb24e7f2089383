// SPDX-License-Identifier: Apache-2.0
#include "SamplePdf.h"

#include <QPageSize>
#include <QPdfWriter>

QString writePdf(const Sandbox &sandbox, const QString &name, const std::vector<SamplePage> &pages)
{
    QPdfWriter writer(sandbox.path(name));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(720);
    QPainter painter;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        writer.setPageSize(
            QPageSize(pages[i].size, QPageSize::Point, QStringLiteral("label"), QPageSize::ExactMatch));
        if (i == 0)
            painter.begin(&writer);
        else
            writer.newPage();
        painter.save();
        painter.scale(10.0, 10.0);
        if (pages[i].draw)
            pages[i].draw(painter);
        painter.restore();
    }
    painter.end();
    return sandbox.path(name);
}

QByteArray handWrittenPdf(const std::vector<QByteArray> &mediaBoxes, const QByteArray &extra)
{
    std::vector<QByteArray> objects;
    QByteArray kids;
    for (std::size_t i = 0; i < mediaBoxes.size(); ++i)
        kids += QByteArray::number(static_cast<qulonglong>(i) + 3) + " 0 R ";
    objects.push_back("<< /Type /Catalog /Pages 2 0 R >>");
    objects.push_back("<< /Type /Pages /Kids [" + kids + "] /Count " +
                      QByteArray::number(static_cast<qulonglong>(mediaBoxes.size())) + " >>");
    for (const QByteArray &box : mediaBoxes)
        objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox " + box + " >>");
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(static_cast<qulonglong>(i) + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(static_cast<qulonglong>(objects.size()) + 1);
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + "xref\n0 " + count + "\n0000000000 65535 f \n" + table + "trailer\n<< /Size " + count +
           " /Root 1 0 R " + extra + " >>\nstartxref\n" + start + "\n%%EOF\n";
}
