// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobHold.h"
#include "JobStatus.h"

namespace host {

/// Determines the state of a job whose upload failed, and cancels the job where it can.
///
/// Asks over connections of its own: the one on which the job was sent may be broken or in the middle of a
/// document. They stay open when the upload is canceled. For tasks in the background.
class JobFate {
public:
    /// All are borrowed.
    JobFate(const CupsServer &server, const JobTicket &ticket, const JobHold &hold);

    /// The answer to Create-Job is lost. Cancels the job if the server has made it, which has no documents
    /// then. Returns the reason, with what may be left when the server cannot be asked.
    CupsError ofUnansweredCreation(const QByteArray &uuid, const CupsError &reason) const;
    /// The last document was sent to its last byte and the answer is lost. Cancels a job that is held. For
    /// another one, returns nothing when the server has all documents and processes the job, otherwise the
    /// reason with the state of the job.
    std::optional<CupsError> ofUnansweredDocument(int jobId, const CupsError &reason) const;
    /// The job's release failed, or its answer is lost. Releases the job again, unless the upload was
    /// canceled, and cancels a job that is still held then. Nothing when the server has released it.
    std::optional<CupsError> ofFailedRelease(int jobId, const CupsError &reason) const;
    /// Cancels the job. Returns the reason, with what is left on the server when the job cannot be canceled.
    CupsError cancel(int jobId, const CupsError &reason) const;

private:
    Result<std::optional<int>, CupsError> find(const QByteArray &uuid) const;
    /// The job that the server has created from a request that was sent, also when the server reads the
    /// request only now; nothing when there is none.
    Result<std::optional<int>, CupsError> findLate(const QByteArray &uuid) const;
    Result<JobStatus, CupsError> ask(CupsConnection &connection, int jobId) const;
    std::optional<CupsError> release(int jobId) const;
    bool hasAllDocuments(const JobStatus &job) const;
    /// The reason, and the number of the job with the server where it is.
    CupsError mayBePrinted(int jobId, const CupsError &reason) const;
    CupsError isLeft(int jobId, const CupsError &reason, const CupsError &obstacle) const;
    CupsError isOver(const JobStatus &job, const CupsError &reason) const;

    /// Asks for no password; one that was given before is used.
    CupsServer m_server;
    const JobTicket &m_ticket;
    const JobHold &m_hold;
};

} // namespace host
