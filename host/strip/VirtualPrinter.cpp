// SPDX-License-Identifier: Apache-2.0
#include "VirtualPrinter.h"

#include "OutputFiles.h"
#include "StripPdf.h"

#include <host/base/OutOfMemory.h>

#include <QDateTime>
#include <QFileInfo>
#include <QImageWriter>
#include <QJsonDocument>
#include <QStandardPaths>

namespace host {
inline namespace strip {

const QString VirtualPrinter::stripName = QStringLiteral("strip.pdf");
const QString VirtualPrinter::jobName = QStringLiteral("job.json");
const QString VirtualPrinter::dialogName = QStringLiteral("dialog.png");

Result<void, OutputError> VirtualPrinter::print(const PrintedStrip &strip, const QJsonObject &job,
                                                const QImage &dialog, const QString &folder)
{
    OutputFiles files(folder);
    files.write(stripName, [&](QIODevice *device) { return writeStripPdf(strip, device); });
    files.write(jobName, [&](QIODevice *device) {
        const QByteArray text = QJsonDocument(job).toJson();
        return device->write(text) == text.size();
    });
    if (!dialog.isNull())
        files.write(dialogName, [&](QIODevice *device) { return QImageWriter(device, "png").write(dialog); });
    // commit() moves the files into the folder one by one, so from here on some may exist.
    OutOfMemory::setJobProgress(JobProgress::Underway);
    Result<void, OutputError> outcome = files.commit();
    OutOfMemory::setJobProgress(outcome ? JobProgress::Printed : JobProgress::Nothing);
    return outcome;
}

QString VirtualPrinter::unusedFolder()
{
    const QString jobs = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/kvprint/jobs/");
    const QString name = jobs + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    QString folder = name;
    for (int next = 2; QFileInfo::exists(folder); ++next)
        folder = name + u'-' + QString::number(next);
    return folder;
}

} // namespace strip
} // namespace host
