// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobHold.h"
#include "JobStatus.h"

namespace host {
inline namespace cups {
inline namespace jobs {

/// Determines the state of a job whose upload failed, and cancels the job where possible.
///
/// Uses connections of its own: the upload's connection may be broken or in the middle of a document.
/// Canceling the upload does not interrupt them. For background tasks.
class JobFate {
public:
    /// All arguments are borrowed, except the server, which is copied.
    JobFate(const CupsServer &server, const JobTicket &ticket, const JobHold &hold);

    /// For a missing response to Create-Job. Cancels the job if the server has created it; it has no
    /// documents then. Returns the reason, together with what may be left on the server if the server cannot
    /// be queried.
    CupsError ofUnansweredCreation(const QByteArray &uuid, const CupsError &reason) const;
    /// For a missing response to the last document, which was sent completely. Cancels a job that is held.
    /// For another job, succeeds if the server has all documents and processes the job; otherwise returns the
    /// reason with the state of the job.
    Result<void, CupsError> ofUnansweredDocument(int jobId, const CupsError &reason) const;
    /// For a failed release, or a missing response to it. Releases the job again, unless the upload was
    /// canceled, and cancels the job if it is still held. Succeeds if the server has released the job.
    Result<void, CupsError> ofFailedRelease(int jobId, const CupsError &reason) const;
    /// Cancels the job. Returns the reason, together with what is left on the server if the job cannot be
    /// canceled.
    CupsError cancel(int jobId, const CupsError &reason) const;

private:
    Result<std::optional<int>, CupsError> find(const QByteArray &uuid) const;
    /// Returns the job that the server has created for a request that was sent, even if the server reads the
    /// request only now; no value if there is none.
    Result<std::optional<int>, CupsError> findLate(const QByteArray &uuid) const;
    Result<JobStatus, CupsError> ask(CupsConnection &connection, int jobId) const;
    Result<void, CupsError> release(int jobId) const;
    bool hasAllDocuments(const JobStatus &job) const;
    /// Returns the reason with the number of the job on the server, which may print it.
    CupsError mayBePrinted(int jobId, const CupsError &reason) const;
    CupsError isLeft(int jobId, const CupsError &reason, const CupsError &obstacle) const;
    CupsError isOver(const JobStatus &job, const CupsError &reason) const;

    /// The server without password prompts; passwords that were entered before are used.
    CupsServer m_server;
    const JobTicket &m_ticket;
    const JobHold &m_hold;
};

} // namespace jobs
} // namespace cups
} // namespace host
