// SPDX-License-Identifier: Apache-2.0
#include "VirtualSender.h"

#include <host/VirtualPrinter.h>

#include <QDir>

namespace dialog {

VirtualSender::VirtualSender(std::optional<QString> folder, QObject *parent)
    : JobSender(parent)
    , m_folder(std::move(folder))
{
}

void VirtualSender::send(const ReadyJob &job)
{
    if (!job.strip) {
        Q_EMIT failed(tr("The PPD file names no paper to print on"));
        return;
    }
    const QString folder = m_folder.value_or(host::VirtualPrinter::freshFolder());
    const QImage picture = m_takePicture ? m_takePicture() : QImage();
    if (const std::optional<host::OutputError> error =
            host::VirtualPrinter::print(*job.strip, picture, folder)) {
        Q_EMIT failed(error->message);
        return;
    }
    m_usedFolder = QDir(folder).absolutePath();
    Q_EMIT sent();
}

} // namespace dialog
