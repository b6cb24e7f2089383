// SPDX-License-Identifier: Apache-2.0
#include "WaitingWords.h"

#include "PrintDialog.h"

#include <host/cups/queues/QueueSession.h>

namespace dialog {

QString waitingWords(const host::QueueSession *session)
{
    if (session && session->ppdError())
        return PrintDialog::tr("The printer's description is not known.");
    if (!session || session->isSettled())
        return session && session->chosen() ? PrintDialog::tr("Waiting for the printer's description…")
                                            : PrintDialog::tr("No printer is chosen.");
    return PrintDialog::tr("Waiting for the print server's answer…");
}

} // namespace dialog
