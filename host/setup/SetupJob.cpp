// SPDX-License-Identifier: Apache-2.0
#include "SetupJob.h"

#include <QFileInfo>

namespace host {
inline namespace setup {

Ticket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobRequest &request)
{
    return makeTicket({setup.destination(), setup.printerText(), setup.ppdOrNull(), setup.constraints(),
                       setup.choices(), setup.keptByRemedies(), setup.panelSettings(), setup.paper(),
                       document, request, [&](const PDEChoices &choices, std::span<const PDELabel> labels) {
                           return setup.stripEffects(choices, labels);
                       }});
}

QString defaultTitle(const LabelDocument &document)
{
    // The title that lp gives standard input.
    return document.path() == QStringLiteral("-") ? QStringLiteral("(stdin)")
                                                  : QFileInfo(document.path()).fileName();
}

QSizeF shownPaper(const PrinterSetup *setup, const LabelDocument &document)
{
    // Labels are drawn as on the tape, with their length from left to right.
    return setup && setup->paper() ? setup->paper()->size : document.pageSize(0).transposed();
}

PageLayout shownLayout(const Ticket *ticket, const PrinterSetup *setup, const LabelDocument &document)
{
    return ticket && ticket->layout ? *ticket->layout : PageLayout(shownPaper(setup, document));
}

} // namespace setup
} // namespace host
