// SPDX-License-Identifier: Apache-2.0
// Writes a PDF with one page that an image fills:
//
//     kvprint-imagepdf PIXELS-ACROSS PIXELS-DOWN COLORS FILTER POINTS-ACROSS POINTS-DOWN <data >page.pdf
//
// COLORS is 1 for gray and 3 for RGB, of 8 bits each. FILTER names how the data is compressed, as PDF does:
// "/DCTDecode" for a JPEG, "/FlateDecode" for rows of pixels. The data is embedded unchanged. kvprint runs
// this program when it opens an image, so that the library for PDFs costs it no time at any other start. The
// exit status is 1 if an argument is invalid, and 2 if there is too little memory; the reason is written to
// standard error.
#include <programs/conversion/Conversion.h>
#include <programs/sandbox/Sandbox.h>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Request {
    std::string pixelsAcross;
    std::string pixelsDown;
    std::string colors;
    std::string filter;
    std::string pointsAcross;
    std::string pointsDown;
};

/// What the process may use. The image and the PDF are both in memory.
programs::SandboxRules rules()
{
    programs::SandboxRules rules;
    rules.seconds = 60;
    rules.bytes = std::size_t{2} << 30U;
    return rules;
}

void writePage(const Request &request, std::vector<unsigned char> &data)
{
    QPDF pdf;
    pdf.emptyPDF();
    QPDFObjectHandle image = QPDFObjectHandle::newStream(&pdf);
    const std::string space = request.colors == "1" ? "/DeviceGray" : "/DeviceRGB";
    image.replaceDict(QPDFObjectHandle::parse(
        "<< /Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace " + space + " /Width " +
        request.pixelsAcross + " /Height " + request.pixelsDown + " >>"));
    image.replaceStreamData(std::make_shared<Buffer>(data.data(), data.size()),
                            QPDFObjectHandle::newName(request.filter), QPDFObjectHandle::newNull());

    const std::string size = request.pointsAcross + " 0 0 " + request.pointsDown;
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /Resources << /XObject << >> >> >>");
    page.replaceKey("/MediaBox",
                    QPDFObjectHandle::parse("[0 0 " + request.pointsAcross + ' ' + request.pointsDown + ']'));
    page.getKey("/Resources").getKey("/XObject").replaceKey("/Image", image);
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, "q " + size + " 0 0 cm /Image Do Q"));
    QPDFPageDocumentHelper(pdf).addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(page)), false);

    QPDFWriter writer(pdf);
    writer.setMinimumPDFVersion("1.4");
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setDeterministicID(true);
    writer.setOutputFile("standard output", stdout, false);
    writer.write();
    programs::flushStandardOutput();
}

} // namespace

int main(int argc, char **argv)
{
    programs::enterSandbox(rules());
    return programs::runConversion("kvprint-imagepdf", [argc, argv] {
        constexpr int argumentCount = 7;
        if (argc != argumentCount)
            throw programs::ConversionError(programs::ConversionError::Damaged, "six arguments are needed");
        std::vector<unsigned char> data = programs::readStandardInput();
        writePage({argv[1], argv[2], argv[3], argv[4], argv[5], argv[6]}, data);
    });
}
