// SPDX-License-Identifier: Apache-2.0
#include "VirtualSender.h"

#include <host/setup/JobReport.h>
#include <host/strip/VirtualPrinter.h>

#include <QDir>

namespace dialog {
inline namespace job {

VirtualSender::VirtualSender(std::optional<QString> folder, QObject *parent)
    : JobSender(parent)
    , m_folder(std::move(folder))
{
}

void VirtualSender::send(const ReadyJob &job)
{
    if (!job.plan || !job.renderer) {
        Q_EMIT failed(tr("The PPD file defines no paper"));
        return;
    }
    const QString folder = m_folder.value_or(host::VirtualPrinter::unusedFolder());
    const QImage picture = m_screenshot ? m_screenshot() : QImage();
    const host::PrintedStrip strip{*job.plan, *job.renderer, job.ticket.document, job.ticket.printer,
                                   job.ticket.paper->text};
    const QJsonObject options =
        host::printedJobJson(job.ticket, job.document, job.ppdPath.value_or(QString()), *job.plan);
    const host::Result<void, host::OutputError> printed =
        host::VirtualPrinter::print(strip, options, picture, folder);
    if (!printed) {
        Q_EMIT failed(printed.error().message);
        return;
    }
    m_lastFolder = QDir(folder).absolutePath();
    Q_EMIT sent();
}

} // namespace job
} // namespace dialog
