// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CupsConnection.h"
#include "JobTicket.h"

namespace host {

/// Holds a job with several documents until the server has all of them.
///
/// A server prints the documents that it has when the rest does not come within its
/// MultipleOperationTimeout: without the hold, a program that is killed or a link that breaks between two
/// documents makes it print the first ones alone. A job with a single document needs no hold: the server
/// takes a document only when its last byte has come, and does not print a job without documents.
class JobHold {
public:
    /// The hold that the ticket's job needs while it is sent. Asks the server about the queue when the job
    /// has several documents; an error when it does not tell. For tasks in the background.
    static Result<JobHold, CupsError> forTicket(CupsConnection &connection, const JobTicket &ticket);

    /// Whether the job is held while it is sent; not when it has one document only, and when the queue knows
    /// no hold without end.
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
