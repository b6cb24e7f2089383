// SPDX-License-Identifier: Apache-2.0
#include "CommandWishes.h"

#include <QLocale>

namespace dialog {

host::CupsServer cupsServer(const CommandLine &command)
{
    host::CupsServer server;
    server.address = command.server;
    server.user = command.user;
    if (command.encrypt)
        server.encryption = host::Encryption::Required;
    return server;
}

host::SetupWishes setupWishes(const CommandLine &command)
{
    return {command.options, command.paper, QLocale().name(), command.force};
}

host::PanelSource panelSource(const CommandLine &command)
{
    return {command.bundle, QLocale().uiLanguages()};
}

QString requestIdLine(const QString &queue, int jobId, qsizetype documents)
{
    // Not translated: scripts read it.
    return QStringLiteral("request id is %1-%2 (%3 file(s))\n").arg(queue).arg(jobId).arg(documents);
}

} // namespace dialog
