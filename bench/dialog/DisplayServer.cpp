// SPDX-License-Identifier: Apache-2.0
#include "DisplayServer.h"

#include <csignal>
#include <sys/prctl.h>

namespace bench {

DisplayServer::DisplayServer()
{
    constexpr int mostMilliseconds = 10000;
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    // Xvfb chooses a free number and prints it when it is ready.
    m_process.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1600x1200x24"), QStringLiteral("-nolisten"),
                     QStringLiteral("tcp"), QStringLiteral("-noreset")});
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(mostMilliseconds))
            return;
    }
    m_name = ':' + m_process.readLine().trimmed();
}

DisplayServer::~DisplayServer()
{
    m_process.terminate();
    if (!m_process.waitForFinished())
        m_process.kill();
}

} // namespace bench
