// SPDX-License-Identifier: Apache-2.0
#include "SetupJob.h"

#include <QFileInfo>

#include <algorithm>

namespace host {

namespace {

/// What is shown is what is sent: a paper that the user's lpoptions name in another way ("media"), or the one
/// that stands in for a default that the PPD does not have.
void sendShownPaper(const PrinterSetup &setup, std::vector<JobOption> &options)
{
    const auto paper = std::ranges::find(options, QByteArray("PageSize"), &JobOption::name);
    const bool isChosen = std::ranges::any_of(
        setup.choices(), [](const JobChoice &choice) { return choice.name == "PageSize"; });
    if (!setup.paper() || isChosen || paper == options.end() || paper->value == setup.paper()->name)
        return;
    *paper = {paper->name, setup.paper()->name, Origin::UserDefault, true};
}

} // namespace

JobTicket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobDraft &draft)
{
    JobTicket ticket;
    ticket.destination = setup.destination();
    ticket.title = sendableTitle(draft.title);
    Destination known = setup.destination();
    // Another paper stands in for the one that the printer does not have, and is not the user's default.
    if (setup.lackingUserPaper())
        std::erase_if(known.userOptions, [](const NamedValue &each) { return each.name == "PageSize"; });
    ticket.options = makeJobOptions(known, setup.ppdOrNull(), setup.choices(), draft.settings);
    sendShownPaper(setup, ticket.options);
    for (const DocumentFile &file : document.files())
        ticket.documents.push_back({file.pathToSend, file.mimeType.toUtf8(), file.name, file.stamp});
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
