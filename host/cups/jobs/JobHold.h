// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsConnection.h>

namespace host {

/// Holds a job until the server has all of its documents.
///
/// A server prints the documents that it has when the rest does not come within its
/// MultipleOperationTimeout: without the hold, a program that is killed or a link that breaks between two
/// documents makes it print the first ones alone. A single document needs the hold as well: cupsd may take
/// a connection that is closed in the middle of a document for the document's end, and begins to print the
/// half of it before the job can be canceled.
class JobHold {
public:
    /// The hold of the ticket's job while it is sent. Asks the server about the queue; an error when it does
    /// not answer. For tasks in the background.
    static Result<JobHold, CupsError> forTicket(CupsConnection &connection, const JobTicket &ticket);

    /// Whether the job is held while it is sent; not when the queue knows no hold without end.
    bool isNeeded() const { return m_isNeeded; }
    /// The ticket's options with the hold, for Create-Job.
    std::vector<JobOption> optionsForCreation(const JobTicket &ticket) const;
    /// Releases the job when the server has all documents, or sets the hold that the user or the queue
    /// requests. Nothing, or why the server has not done so.
    std::optional<CupsError> end(CupsConnection &connection, const QString &queue, int jobId) const;
    /// Whether a job with this "job-hold-until" is not released yet. Never true when the user requests a hold
    /// without end, since such a job is not released.
    bool isStillOn(const QString &heldUntil) const;

private:
    bool m_isNeeded = false;
    /// The value of "job-hold-until" of the complete job.
    QByteArray m_wanted = "no-hold";
};

} // namespace host
