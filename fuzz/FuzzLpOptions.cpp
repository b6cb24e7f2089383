// SPDX-License-Identifier: Apache-2.0
// lpoptions, which users edit by hand.
#include "FuzzFile.h"

#include <host/cups/queues/LpOptions.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString path = [] {
        const QString file = writeFuzzFile(QStringLiteral(".cups/lpoptions"), {});
        qputenv("HOME", QFile::encodeName(fuzzFolder()));
        qputenv("CUPS_SERVERROOT", QFile::encodeName(fuzzFolder() + QStringLiteral("/no-such-folder")));
        return file;
    }();
    writeFuzzFile(QStringLiteral(".cups/lpoptions"),
                  QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    const host::LpOptions options = host::LpOptions::read();
    for (const host::LpOptions::Entry &entry : options.entries())
        if (options.options(entry.queue, entry.instance).size() != entry.options.size())
            qFatal("the options of \"%s\" are not found", qPrintable(entry.queue));
    return 0;
}
