// SPDX-License-Identifier: Apache-2.0
#include "SamplePdf.h"

#include <QPageSize>
#include <QPdfWriter>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

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

QByteArray pdfWithPageBoxes(const std::vector<QByteArray> &boxes, const QByteArray &password)
{
    QPDF pdf;
    pdf.emptyPDF();
    std::vector<QPDFObjectHandle> pages;
    QPDFObjectHandle tree = pdf.getRoot().getKey("/Pages");
    for (const QByteArray &box : boxes) {
        QPDFObjectHandle page =
            QPDFObjectHandle::parse("<< /Type /Page /MediaBox " + box.toStdString() + " >>");
        page.replaceKey("/Parent", tree);
        pages.push_back(pdf.makeIndirectObject(page));
    }
    tree.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
    tree.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
    QPDFWriter writer(pdf);
    if (!password.isEmpty())
        writer.setR6EncryptionParameters(password.constData(), password.constData(), true, true, true, true,
                                         true, true, qpdf_r3p_full, true);
    else
        writer.setDeterministicID(true);
    writer.setOutputMemory();
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
}
