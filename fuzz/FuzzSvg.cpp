// SPDX-License-Identifier: Apache-2.0
// An SVG from a user's folder or a page of the web: what is passed to the converter is well-formed, has no
// document type, and passes the same check again.
#include <host/documents/SvgSource.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray svg(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto source = host::SvgSource::read(svg);
    if (!source) {
        if (source.error().reason.isEmpty())
            qFatal("refused without a word");
        return 0;
    }
    if (source.value().content.contains("<!DOCTYPE") || source.value().content.contains("<!ENTITY"))
        qFatal("a document type is left in\n%s", source.value().content.constData());
    if (const auto again = host::SvgSource::read(source.value().content); !again)
        qFatal("refused when it is read again: %s\n%s", qPrintable(again.error().reason),
               source.value().content.constData());
    return 0;
}
