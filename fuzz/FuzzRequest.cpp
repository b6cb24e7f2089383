// SPDX-License-Identifier: Apache-2.0
// Lines for kvpanel, each a request to the real panel. Files are named by the fuzzer only where they are read
// or written harmlessly: pictures go to its own folder, and the sample printers are the PPDs.
#include "FuzzFile.h"

#include <programs/kvpanel/LineReader.h>
#include <programs/kvpanel/PanelDriver.h>

#include <QApplication>
#include <QJsonDocument>

#include <cstdint>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

QJsonObject harmless(QJsonObject request)
{
    if (request.contains(QLatin1String("path")) && request[QLatin1String("path")].isString())
        request[QLatin1String("path")] = QString(fuzzFolder() + QStringLiteral("/picture.png"));
    if (request.contains(QLatin1String("ppd")) && request[QLatin1String("ppd")].isString())
        request[QLatin1String("ppd")] =
            QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-%1.ppd")
                .arg(request[QLatin1String("ppd")].toString().contains(u'9') ? QStringLiteral("lx900")
                                                                             : QStringLiteral("dz500"));
    return request;
}

/// The bytes as a file that lines are read from.
int descriptorWith(const std::uint8_t *data, std::size_t size)
{
    const int descriptor = memfd_create("requests", MFD_CLOEXEC);
    if (descriptor < 0 || write(descriptor, data, size) != static_cast<ssize_t>(size) ||
        lseek(descriptor, 0, SEEK_SET) != 0)
        qFatal("no file in memory: %s", qPrintable(qt_error_string()));
    return descriptor;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (!QCoreApplication::instance()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int count = 1;
        static char name[] = "fuzz_request";
        static char *arguments[] = {name, nullptr};
        new QApplication(count, arguments); // lasts as long as the program
    }
    const int descriptor = descriptorWith(data, size);
    PanelDriver driver(QStringLiteral(KV_BUNDLE));
    LineReader reader(descriptor);
    QByteArray line;
    while (reader.next(&line) != LineReader::Result::End) {
        const QJsonDocument request = QJsonDocument::fromJson(line);
        if (!request.isObject())
            continue;
        const QJsonObject reply = driver.handle(harmless(request.object()));
        if (!reply[QLatin1String("ok")].toBool() && reply[QLatin1String("error")].toString().isEmpty())
            qFatal("refused without a word: %s", line.constData());
    }
    close(descriptor);
    return 0;
}
