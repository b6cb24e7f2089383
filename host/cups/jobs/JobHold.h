// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Holds a job until the server has all of its documents.
///
/// A server prints the documents that it has if the others do not follow within its MultipleOperationTimeout:
/// without the hold, it prints only the first ones if the program is killed or the connection breaks between
/// two documents. A single document also needs the hold: cupsd may treat a connection that closes in the
/// middle of a document as the document's end, and starts to print the incomplete document before the job can
/// be canceled.
class JobHold {
public:
    /// Returns the hold of the ticket's job during its upload. Queries the server about the queue; returns an
    /// error if that fails. For background tasks.
    static Result<JobHold, CupsError> forTicket(CupsConnection &connection, const JobTicket &ticket);

    /// Whether the job is held during its upload; false if the queue does not support an indefinite hold.
    bool isNeeded() const { return m_isNeeded; }
    /// Returns the ticket's options with the hold, for Create-Job.
    std::vector<JobOption> optionsForCreation(const JobTicket &ticket) const;
    /// Releases the job when the server has all documents, or sets the hold that the user or the queue
    /// requests. Returns no value, or the error.
    Result<void, CupsError> end(CupsConnection &connection, const QString &queue, int jobId) const;
    /// Returns whether a job with this "job-hold-until" has not been released yet. Always false if the user
    /// requests an indefinite hold, since such a job is not released.
    bool isStillOn(const std::optional<QString> &heldUntil) const;

private:
    bool m_isNeeded = false;
    /// The value of "job-hold-until" of the complete job.
    QByteArray m_requestedHold = "no-hold";
};

} // namespace jobs
} // namespace cups
} // namespace host
