// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterSetup.h"
#include "Ticket.h"

namespace host {
inline namespace setup {

/// The job as it would be sent to the printer now. The panel is asked what it would save; nothing changes.
Ticket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobRequest &draft);

/// The name that lp gives a job: that of its first document.
QString defaultTitle(const LabelDocument &document);

/// The paper on which the labels are shown, in points: the printer's, or without one (or with null, while the
/// printer is not known) one on which the first page stands as it is read.
QSizeF shownPaper(const PrinterSetup *setup, const LabelDocument &document);

} // namespace setup
} // namespace host
