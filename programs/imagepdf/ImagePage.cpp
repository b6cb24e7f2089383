// SPDX-License-Identifier: Apache-2.0
#include "ImagePage.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <cstdio>
#include <memory>

namespace programs {
inline namespace imagepdf {

void writeImagePage(const ImagePage &page)
{
    QPDF pdf;
    pdf.emptyPDF();
    QPDFObjectHandle image = QPDFObjectHandle::newStream(&pdf);
    const std::string space = page.colors == 1 ? "/DeviceGray" : "/DeviceRGB";
    image.replaceDict(QPDFObjectHandle::parse(
        "<< /Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace " + space + " /Width " +
        std::to_string(page.pixelsAcross) + " /Height " + std::to_string(page.pixelsDown) + " >>"));
    image.replaceStreamData(std::make_shared<Buffer>(page.data, page.length),
                            QPDFObjectHandle::newName(page.filter), QPDFObjectHandle::newNull());

    QPDFObjectHandle object = QPDFObjectHandle::parse("<< /Type /Page /Resources << /XObject << >> >> >>");
    object.replaceKey("/MediaBox", QPDFObjectHandle::parse("[0 0 " + page.width + ' ' + page.height + ']'));
    object.getKey("/Resources").getKey("/XObject").replaceKey("/Image", image);
    object.replaceKey(
        "/Contents",
        QPDFObjectHandle::newStream(&pdf, "q " + page.width + " 0 0 " + page.height + " 0 0 cm /Image Do Q"));
    QPDFPageDocumentHelper(pdf).addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(object)), false);

    QPDFWriter writer(pdf);
    writer.setMinimumPDFVersion("1.4");
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setDeterministicID(true);
    writer.setOutputFile("standard output", stdout, false);
    writer.write();
}

} // namespace imagepdf
} // namespace programs
