// SPDX-License-Identifier: Apache-2.0
#include "WaitingText.h"

#include <host/cups/queues/QueueSession.h>

#include <QCoreApplication>

namespace dialog {
inline namespace window {

namespace {

struct WaitingText {
    Q_DECLARE_TR_FUNCTIONS(dialog::window::PrintDialog)
};

} // namespace

QString waitingText(const host::QueueSession *session)
{
    if (session && session->ppdError())
        return WaitingText::tr("The printer's description is not known.");
    if (!session || session->isSettled())
        return session && session->chosen() ? WaitingText::tr("Waiting for the printer's description…")
                                            : WaitingText::tr("No printer is selected.");
    return WaitingText::tr("Waiting for the print server\u2026");
}

} // namespace window
} // namespace dialog
