// SPDX-License-Identifier: Apache-2.0
#include "RawPdf.h"

#include <QMap>

QByteArray rawPdf(const std::vector<RawPage> &pages, const std::vector<QByteArray> &objects)
{
    constexpr int firstObject = 10;
    int next = firstObject + static_cast<int>(objects.size());
    QMap<int, QByteArray> all;
    for (std::size_t index = 0; index < objects.size(); ++index)
        all[firstObject + static_cast<int>(index)] = objects[index];
    QByteArray kids;
    for (const RawPage &page : pages) {
        const int number = next++;
        const int content = next++;
        kids += QByteArray::number(number) + " 0 R ";
        all[number] = "<< /Type /Page /Parent 2 0 R /Contents " + QByteArray::number(content) + " 0 R " +
                      page.entries + " >>";
        all[content] = "<< /Length " + QByteArray::number(page.content.size()) + " >>\nstream\n" +
                       page.content + "\nendstream";
    }
    all[1] = "<< /Type /Catalog /Pages 2 0 R >>";
    all[2] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>";
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table = "xref\n0 1\n0000000000 65535 f \n";
    for (auto object = all.begin(); object != all.end(); ++object) {
        table += QByteArray::number(object.key()) + " 1\n" +
                 QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(object.key()) + " 0 obj\n" + object.value() + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + table + "trailer\n<< /Size " + QByteArray::number(next) + " /Root 1 0 R >>\nstartxref\n" +
           start + "\n%%EOF\n";
}
