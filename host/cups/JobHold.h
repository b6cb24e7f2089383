// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CupsConnection.h"
#include "JobTicket.h"

namespace host {

/// Holds a job until the server has all of its documents.
///
/// A server prints the documents that it has when the rest does not come within its
/// MultipleOperationTimeout: without the hold, a program that is killed or a link that breaks between two
/// documents makes it print the first ones alone. A single document needs the hold as well: cupsd may take
/// a connection that is closed in the middle of a document for the document's end, and begins to print the
/// half of it before anybody can cancel the job.
class JobHold {
public:
    /// The hold of the ticket's job while it is sent. Asks the server about the queue; an error when it does
    /// not tell. For tasks in the background.
    static Result<JobHold, CupsError> forTicket(CupsConnection &connection, const JobTicket &ticket);

    /// Whether the job is held while it is sent; not when the queue knows no hold without end.
    bool isNeeded() const { return m_isNeeded; }
    /// The ticket's options with the hold, for Create-Job.
    std::vector<JobOption> optionsForCreation(const JobTicket &ticket) const;
    /// Lets the job go when the server has all of it: it is printed, or waits for what the user or the queue
    /// wants it to wait for. Nothing, or why the server has not done so.
    std::optional<CupsError> end(CupsConnection &connection, const QString &queue, int jobId) const;
    /// Whether a job that the server tells to wait until then is not let go yet. Never true when the user
    /// wants the job to wait without end: then there is nothing left to do.
    bool isStillOn(const QString &heldUntil) const;

private:
    bool m_isNeeded = false;
    /// The value of "job-hold-until" of the complete job.
    QByteArray m_wanted = "no-hold";
};

} // namespace host
