// SPDX-License-Identifier: Apache-2.0
#include "Console.h"

#include <QCoreApplication>

namespace programs {
inline namespace kvprint {

namespace {

struct ConsoleText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::Console)
};

} // namespace

void Console::printError(const QString &message) const
{
    error(QCoreApplication::applicationName() + QStringLiteral(": ") + message + u'\n');
}

void Console::printRequestId(const QString &queue, int jobId, qsizetype documents) const
{
    // The line of lp, untranslated: programs that start lp parse it.
    const QString line =
        QStringLiteral("request id is %1-%2 (%3 file(s))\n").arg(queue).arg(jobId).arg(documents);
    if (!out(line))
        printError(ConsoleText::tr("The job was sent nevertheless, as %1-%2.").arg(queue).arg(jobId));
}

} // namespace kvprint
} // namespace programs
