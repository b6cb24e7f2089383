// SPDX-License-Identifier: Apache-2.0
#include "SetupJob.h"

#include <QFileInfo>

namespace host {

JobTicket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobDraft &draft)
{
    JobTicket ticket;
    ticket.destination = setup.destination();
    ticket.title = draft.title;
    ticket.options = makeJobOptions(setup.destination(), setup.ppdOrNull(), setup.choices(), draft.settings);
    ticket.documents.push_back({document.path(), "application/pdf"});
    return ticket;
}

QString defaultTitle(const LabelDocument &document)
{
    return QFileInfo(document.path()).fileName();
}

QSizeF shownPaper(const PrinterSetup &setup, const LabelDocument &document)
{
    return setup.paper() ? setup.paper()->size : document.pageSize(0);
}

} // namespace host
