// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterSetup.h"

#include <host/PrintJob.h>
#include <host/cups/JobTicket.h>

namespace host {

/// What is set for the job beside the printer's own options.
struct JobDraft {
    /// Nothing in it stands for the queue's own setting.
    JobSettings settings;
    /// The job's name in the queue.
    QString title;
    /// Which pages come out and how often, as settings say it.
    PageChoices pages;
};

/// The job as it would be sent to the printer now.
JobTicket ticketFor(const PrinterSetup &setup, const LabelDocument &document, const JobDraft &draft);

/// The name that lp gives a job: that of its first document.
QString defaultTitle(const LabelDocument &document);

/// The paper on which the labels are shown, in points: the printer's, or without one (or with null, while the
/// printer is not known) one on which the first page stands as it is read.
QSizeF shownPaper(const PrinterSetup *setup, const LabelDocument &document);

} // namespace host
