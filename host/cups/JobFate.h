// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobHold.h"
#include "JobStatus.h"

namespace host {

/// Finds out what has become of a job whose sending went wrong, and takes it back where it can.
///
/// Asks over connections of its own: the one on which the job was sent may be broken or in the middle of a
/// document. They are not given up when the sending is cancelled. For tasks in the background.
class JobFate {
public:
    /// All are borrowed.
    JobFate(const CupsServer &server, const JobTicket &ticket, const JobHold &hold);

    /// The answer to Create-Job is lost. Cancels the job if the server has made it, which has no documents
    /// then; answers the reason, and what may be left when nobody can tell.
    CupsError ofUnansweredCreation(const QByteArray &uuid, const CupsError &reason) const;
    /// The last document was sent to its last byte and the answer is lost. A job that is held is canceled. Of
    /// another one: nothing when the server has all documents and the job goes its way; otherwise the reason
    /// with what has become of the job.
    std::optional<CupsError> ofUnansweredDocument(int jobId, const CupsError &reason) const;
    /// The answer to the job's release is lost. Nothing when the server has released it.
    std::optional<CupsError> ofUnansweredRelease(int jobId, const CupsError &reason) const;
    /// Cancels the job; answers the reason, and what is left on the server when it cannot be cancelled.
    CupsError takenBack(int jobId, const CupsError &reason) const;

private:
    Result<JobStatus, CupsError> ask(CupsConnection &connection, int jobId) const;
    Result<std::optional<int>, CupsError> find(const QByteArray &uuid) const;
    bool hasAllDocuments(const JobStatus &job) const;
    /// The reason, and the number of the job with the server where it is.
    CupsError mayBePrinted(int jobId, const CupsError &reason) const;
    CupsError isLeft(int jobId, const CupsError &reason, const CupsError &obstacle) const;
    CupsError isOver(const JobStatus &job, const CupsError &reason) const;

    /// Nobody hears its questions for passwords; one that was given before still counts.
    CupsServer m_server;
    const JobTicket &m_ticket;
    const JobHold &m_hold;
};

} // namespace host
