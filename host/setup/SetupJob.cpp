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
    for (const DocumentFile &file : document.files())
        ticket.documents.push_back({file.pathToSend, file.mimeType.toUtf8(), file.name});
    return ticket;
}

QString defaultTitle(const LabelDocument &document)
{
    // As lp calls what it reads from standard input.
    return document.path() == QStringLiteral("-") ? QStringLiteral("(stdin)")
                                                  : QFileInfo(document.path()).fileName();
}

QSizeF shownPaper(const PrinterSetup *setup, const LabelDocument &document)
{
    // Labels are drawn as they lie on the tape, their length from left to right.
    return setup && setup->paper() ? setup->paper()->size : document.pageSize(0).transposed();
}

} // namespace host
