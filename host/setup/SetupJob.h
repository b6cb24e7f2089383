// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterSetup.h"
#include "Ticket.h"

namespace host {
inline namespace setup {

/// Returns the job as it would be sent to the printer now. Queries the panel for what it would save; nothing
/// changes.
Ticket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobRequest &request);

/// Returns the title that lp gives a job: the name of its first document.
QString defaultTitle(const LabelDocument &document);

/// Returns the paper on which labels are shown, in points: that of the setup; without a paper or with a null
/// setup, one of the size of the first page.
QSizeF shownPaper(const PrinterSetup *setup, const LabelDocument &document);

/// Returns the layout of the pages that are shown: that of the ticket; without a ticket or a paper, that of
/// shownPaper().
PageLayout shownLayout(const Ticket *ticket, const PrinterSetup *setup, const LabelDocument &document);

} // namespace setup
} // namespace host
