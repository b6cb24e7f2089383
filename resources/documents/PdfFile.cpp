// SPDX-License-Identifier: Apache-2.0
#include "PdfFile.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace documents {

namespace {

QByteArray written(QPDFWriter &writer)
{
    writer.setOutputMemory();
    writer.setMinimumPDFVersion("1.4");
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
}

QPDFObjectHandle pageBox(QSizeF size)
{
    constexpr int decimals = 2;
    return QPDFObjectHandle::newArray({QPDFObjectHandle::newInteger(0), QPDFObjectHandle::newInteger(0),
                                       QPDFObjectHandle::newReal(size.width(), decimals),
                                       QPDFObjectHandle::newReal(size.height(), decimals)});
}

} // namespace

QByteArray withPageSizes(const QByteArray &pdf, const QList<QSizeF> &sizes)
{
    QPDF file;
    file.processMemoryFile("labels", pdf.constData(), static_cast<std::size_t>(pdf.size()));
    qsizetype index = 0;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(file).getAllPages())
        page.getObjectHandle().replaceKey("/MediaBox", pageBox(sizes.at(index++)));
    file.getTrailer().getKey("/Info").removeKey("/CreationDate");
    QPDFWriter writer(file);
    writer.setDeterministicID(true);
    return written(writer);
}

QByteArray pdfWithoutPages()
{
    QPDF file;
    file.emptyPDF();
    QPDFWriter writer(file);
    writer.setDeterministicID(true);
    return written(writer);
}

QByteArray encryptedLabel(const QByteArray &password)
{
    QPDF file;
    file.emptyPDF();
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /Resources << >> >>");
    page.replaceKey("/MediaBox", pageBox({68.03, 170.08}));
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&file, "10 10 20 40 re f"));
    QPDFPageDocumentHelper(file).addPage(QPDFPageObjectHelper(file.makeIndirectObject(page)), false);
    QPDFWriter writer(file);
    // The identifier is a part of the key.
    writer.setStaticID(true);
    writer.setR4EncryptionParametersInsecure(password.constData(), password.constData(), true, true, true,
                                             true, true, true, qpdf_r3p_full, true, true);
    writer.setStaticAesIV(true);
    return written(writer);
}

} // namespace documents
