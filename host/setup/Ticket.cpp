// SPDX-License-Identifier: Apache-2.0
#include "Ticket.h"

#include "JobLayout.h"

#include <host/base/Length.h>
#include <host/documents/PdfPages.h>

#include <algorithm>

namespace host {
inline namespace setup {

namespace {

/// Returns the user's default paper if the printer does not have it.
bool isUserPaperMissing(const TicketSource &source)
{
    const QByteArray *const users = findValue(source.destination.userOptions, paperKeyword);
    return users && source.ppd && !source.ppd->paper(*users);
}

std::vector<JobChoice> choicesWithPanel(const TicketSource &source)
{
    std::vector<JobChoice> choices = source.choices;
    for (const auto &[keyword, choice] : source.panel.choices)
        setJobChoice(choices, {keyword.toUtf8(), choice.toUtf8(), Origin::Panel});
    return choices;
}

/// The paper that is shown is sent: also one that the user's lpoptions name differently ("media"), and one
/// that replaces a default that the PPD does not have.
void sendShownPaper(const Ticket &ticket, std::vector<JobOption> &options)
{
    const auto paper = std::ranges::find(options, QByteArray(paperKeyword), &JobOption::name);
    const bool isChosen =
        std::ranges::find(ticket.choices, QByteArray(paperKeyword), &JobChoice::name) != ticket.choices.end();
    if (!ticket.paper || isChosen || paper == options.end() || paper->value == ticket.paper->name)
        return;
    *paper = {paper->name, ticket.paper->name, Origin::UserDefault, true};
}

JobTicket makeJob(const TicketSource &source, const Ticket &ticket)
{
    JobTicket job;
    job.destination = source.destination;
    job.title = sendableTitle(source.request.title);
    Destination known = source.destination;
    // The paper that replaces the missing one is not the user's default.
    if (isUserPaperMissing(source))
        std::erase_if(known.userOptions, [](const NamedValue &each) { return each.name == paperKeyword; });
    job.options = makeJobOptions(known, source.ppd, ticket.choices, source.request.settings);
    sendShownPaper(ticket, job.options);
    return job;
}

/// Returns whether the layout changes one of the first pages of the document, whose sizes are known.
bool changesPages(const LabelDocument &document, const DocumentFile &file, const PageLayout &layout)
{
    const int end = file.firstPage + std::min(file.pageCount, PdfPages::checkedAtOnce);
    for (int page = file.firstPage; page < end; ++page) {
        const QSizeF size = document.pageSize(page);
        if (!layout.isUnchanged(size, layout.place(size)))
            return true;
    }
    return false;
}

/// Adds the documents, laid out on the paper if there is one.
void addDocuments(const LabelDocument &document, Ticket &ticket)
{
    if (ticket.paper) {
        ticket.layout = layoutOf(*ticket.paper, ticket.job.options);
        keepLaidOutPages(ticket.job.options);
    }
    for (const DocumentFile &file : document.files())
        ticket.job.documents.push_back({file.pathToSend, file.mimeType.toUtf8(), file.name, file.stamp,
                                        ticket.layout,
                                        ticket.layout && changesPages(document, file, *ticket.layout)});
}

/// Returns the PPD options that the job contains. The server applies the marked defaults of the others.
PDEChoices sentChoices(const JobTicket &job, const PpdFile &ppd)
{
    PDEChoices sent;
    for (const JobOption &option : job.options) {
        const QString keyword = QString::fromUtf8(option.name);
        if (option.isSent && ppd.hasOption(keyword))
            setChoice(sent, keyword, QString::fromUtf8(option.value));
    }
    return sent;
}

StripEffects stripEffects(const TicketSource &source, const Ticket &ticket)
{
    if (!source.ppd || !source.stripEffects)
        return {};
    std::vector<PDELabel> labels;
    labels.reserve(ticket.order.size());
    for (const PrintedPage &page : ticket.order)
        labels.push_back({page.endsCopy, page.endsDocument});
    return source.stripEffects(sentChoices(ticket.job, *source.ppd), labels);
}

} // namespace

Ticket makeTicket(const TicketSource &source)
{
    Ticket ticket;
    ticket.document = source.document.title();
    ticket.printer = source.printer;
    ticket.paper = source.paper;
    ticket.pages = source.request.pages;
    ticket.settings = withDefaults(source.request.settings, defaultPageSettings(source.destination));
    ticket.choices = choicesWithPanel(source);
    ticket.panel = source.panel;
    ticket.job = makeJob(source, ticket);
    addDocuments(source.document, ticket);
    ticket.order = printOrder(pagesByDocument(ticket.pages.pages, source.document.pageCounts()),
                              ticket.pages.copies, ticket.pages.collate, ticket.pages.order);
    ticket.strip = stripEffects(source, ticket);
    // A printer that mirrors the label as well shows it as it was.
    if (isMirroredByFilters(ticket.job.options))
        ticket.strip.mirror = !ticket.strip.mirror;
    if (source.constraints) {
        ticket.conflicts = source.constraints->conflicts(source.panel.choices);
        if (!ticket.conflicts.empty())
            ticket.remedy = source.constraints->remedy(source.kept, source.panel.choices);
    }
    return ticket;
}

CutPlan makePlan(const Ticket &ticket, const LabelDocument &document, const LabelRenderer &renderer)
{
    const MeasureBlank blank = ticket.strip.removeBlank ? MeasureBlank::Yes : MeasureBlank::No;
    std::vector<LabelExtent> extents(static_cast<std::size_t>(document.pageCount()));
    for (const int page : ticket.pages.pages)
        extents[static_cast<std::size_t>(page)] = renderer.extent(page, blank);
    // The top of the label leaves the printer first.
    std::optional<Millimetres> leadingMargin;
    if (ticket.paper && ticket.paper->margins)
        leadingMargin = Millimetres(Points(ticket.paper->margins->top()));
    return CutPlan::make(ticket.strip, pageNumbers(ticket.order), extents, leadingMargin);
}

} // namespace setup
} // namespace host
