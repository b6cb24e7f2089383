// SPDX-License-Identifier: Apache-2.0
// What is kept of a server's queues, after a full disk, an older version or another program has changed the
// file: what is read back is stored and read as the same.
#include "FuzzFile.h"

#include <host/cups/queues/QueueCache.h>

#include <QDirIterator>

#include <cstdint>

namespace {

/// The cache of a server of no consequence, below the fuzzer's folder.
const host::QueueCache &cache()
{
    static const host::QueueCache kept = [] {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(fuzzFolder()));
        host::CupsServer server;
        server.address = QStringLiteral("printers.example");
        return host::QueueCache(server);
    }();
    return kept;
}

/// The file with all queues, which the cache names itself.
const QString &fileOfQueues()
{
    static const QString path = [] {
        cache().storeDestinations({host::Destination()});
        QDirIterator files(cache().folder(), QDir::Files);
        if (!files.hasNext())
            qFatal("nothing is kept in %s", qPrintable(cache().folder()));
        return files.next();
    }();
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QFile file(fileOfQueues());
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    const std::vector<host::Destination> read = cache().destinations();
    cache().storeDestinations(read);
    if (cache().destinations() != read)
        qFatal("what was stored is not what was read");
    return 0;
}
