// SPDX-License-Identifier: Apache-2.0
// The metadata of PNGs and JPEGs. The first byte of each signature decides which reader parses the data; both
// receive all bytes.
#include <host/images/ImageFacts.h>

#include <cstdint>

#include <QtNumeric>

namespace {

void examine(const host::ImageFacts &facts)
{
    if (facts.resolution && (!(facts.resolution->width() > 0) || !(facts.resolution->height() > 0) ||
                             !qIsFinite(facts.resolution->width()) || !qIsFinite(facts.resolution->height())))
        qFatal("a resolution of %g x %g", facts.resolution->width(), facts.resolution->height());
    if (facts.pdfColors && facts.pdfColors != 1 && facts.pdfColors != 3)
        qFatal("%d colours", *facts.pdfColors);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray image(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    examine(host::pngFacts(image));
    examine(host::jpegFacts(image));
    return 0;
}
