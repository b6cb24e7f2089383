// SPDX-License-Identifier: Apache-2.0
#include "LeftJob.h"

#include "JobSearch.h"
#include "JobStatus.h"

#include <QCoreApplication>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct LeftJobText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::LeftJob)
};

/// Returns the server of the job, which may differ from the current one.
CupsServer serverOf(const JobRecord &record, const CupsServer &asking)
{
    CupsServer server = asking;
    server.address = record.server;
    server.user = record.user;
    server.encryption = record.encrypts ? Encryption::Required : Encryption::IfRequested;
    // A password for one server is not sent to another.
    server.passwords = std::make_shared<PasswordMemory>();
    return server;
}

QString goneSentence(const JobRecord &record)
{
    return LeftJobText::tr("The print server \"%1\" no longer has the job \"%2\" in the queue \"%3\", or the "
                           "job is finished.")
        .arg(record.server, record.title, record.queue);
}

/// Performs the action on the job with this number and describes the result.
Result<QString, CupsError> settle(CupsConnection &connection, const JobRecord &record, int jobId,
                                  LeftJobAction action)
{
    const Result<JobStatus, CupsError> job = queryJob(connection, record.queue, jobId);
    if (!job)
        return job.error();
    const QString number = QString::number(jobId);
    if (action == LeftJobAction::Release && job.value().state != JobState::Held)
        return LeftJobText::tr("Job %1-%2 on the print server \"%3\" is not held: %4")
            .arg(record.queue, number, record.server, job.value().sentences().join(u' '));
    const ipp_op_t operation = action == LeftJobAction::Release ? IPP_OP_RELEASE_JOB : IPP_OP_CANCEL_JOB;
    IppPointer request = connection.newRequest(operation, record.queue, jobId);
    const Result<IppPointer, CupsError> answer = connection.exchangeUncancelable(std::move(request), "/jobs");
    if (!answer)
        return answer.error();
    return (action == LeftJobAction::Release
                ? LeftJobText::tr("Job %1-%2 on the print server \"%3\" is released.")
                : LeftJobText::tr("Job %1-%2 on the print server \"%3\" is canceled."))
        .arg(record.queue, number, record.server);
}

} // namespace

QString leftJobSentence(const JobRecord &record)
{
    if (record.jobId)
        return LeftJobText::tr("An interrupted program may have left job %1 (\"%2\") on the print server "
                               "\"%3\"; the job may be incomplete.")
            .arg(record.name(), record.title, record.server);
    return LeftJobText::tr("An interrupted program may have left a job \"%1\" without documents in the queue "
                           "\"%2\" of the print server \"%3\".")
        .arg(record.title, record.queue, record.server);
}

Result<QString, CupsError> settleLeftJob(const CupsServer &asking, const JobRecord &record,
                                         LeftJobAction action, BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(serverOf(record, asking), task);
    if (!connection)
        return connection.error();
    const Result<std::optional<int>, CupsError> jobId =
        findJob(connection.value(), record.queue, record.uuid);
    const bool isGone = jobId ? !jobId.value() : jobId.error().kind == CupsErrorKind::NotFound;
    if (!isGone && !jobId)
        return jobId.error();
    Result<QString, CupsError> outcome = goneSentence(record);
    if (!isGone)
        outcome = settle(connection.value(), record, *jobId.value(), action);
    if (outcome)
        JobJournal().remove(record);
    return outcome;
}

} // namespace jobs
} // namespace cups
} // namespace host
