// SPDX-License-Identifier: Apache-2.0
#include "JobFate.h"

#include "JobCancellation.h"
#include "JobSearch.h"

#include <QCoreApplication>

#include <array>
#include <chrono>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobFateText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobFate)
};

} // namespace

JobFate::JobFate(const CupsServer &server, const JobTicket &ticket, const JobHold &hold)
    : m_server(server)
    , m_ticket(ticket)
    , m_hold(hold)
{
    m_server.askPassword = nullptr;
    m_server.askTrust = nullptr;
}

Result<std::optional<int>, CupsError> JobFate::find(const QByteArray &uuid) const
{
    BackgroundTask task;
    Result<CupsConnection, CupsError> connection = CupsConnection::open(m_server, task);
    if (!connection)
        return connection.error();
    return findJob(connection.value(), m_ticket.destination.queue, uuid);
}

Result<std::optional<int>, CupsError> JobFate::findLate(const QByteArray &uuid) const
{
    // The server may have received the request without having read it: it reads it before it responds to the
    // next queries, unless the request is still on the network.
    constexpr std::array pauses = {std::chrono::milliseconds(0), std::chrono::milliseconds(100),
                                   std::chrono::milliseconds(400)};
    Result<std::optional<int>, CupsError> job = std::optional<int>();
    for (const std::chrono::milliseconds pause : pauses) {
        BackgroundTask().pause(pause);
        job = find(uuid);
        if (!job || job.value())
            break;
    }
    return job;
}

CupsError JobFate::ofUnansweredCreation(const QByteArray &uuid, const CupsError &reason) const
{
    const Result<std::optional<int>, CupsError> job = findLate(uuid);
    if (job)
        return job.value() ? cancel(*job.value(), reason) : reason;
    return {CupsErrorKind::OutcomeUnknown,
            JobFateText::tr("%1 A job \"%2\" without documents may be left in the queue \"%3\" of the print "
                            "server \"%4\"; it prints nothing.")
                .arg(reason.message, sendableTitle(m_ticket.title), m_ticket.destination.queue,
                     m_server.displayName())};
}

Result<JobStatus, CupsError> JobFate::ask(CupsConnection &connection, int jobId) const
{
    return queryJob(connection, m_ticket.destination.queue, jobId);
}

bool JobFate::hasAllDocuments(const JobStatus &job) const
{
    // A server that does not report the number prints nothing before it has all documents, unless the job is
    // held.
    return job.documents ? *job.documents >= static_cast<int>(m_ticket.documents.size())
                         : job.state != JobState::Held;
}

Result<void, CupsError> JobFate::ofUnansweredDocument(int jobId, const CupsError &reason) const
{
    // What the server counts as a document may be incomplete and must not be released.
    if (m_hold.isNeeded())
        return cancel(jobId, reason);
    BackgroundTask task;
    Result<CupsConnection, CupsError> connection = CupsConnection::open(m_server, task);
    if (!connection)
        return mayBePrinted(jobId, reason);
    const Result<JobStatus, CupsError> job = ask(connection.value(), jobId);
    if (!job)
        return mayBePrinted(jobId, reason);
    if (job.value().state == JobState::Canceled || job.value().state == JobState::Aborted)
        return isOver(job.value(), reason);
    if (!hasAllDocuments(job.value()))
        return cancel(jobId, reason);
    return {};
}

Result<void, CupsError> JobFate::ofFailedRelease(int jobId, const CupsError &reason) const
{
    const auto notKnown = [&]() -> CupsError {
        return {CupsErrorKind::OutcomeUnknown,
                JobFateText::tr("%1 The print server \"%2\" has all documents of job %3-%4, but did not "
                                "report whether it released the job: it is printed, or it is still held. "
                                "Check the queue before you print again.")
                    .arg(reason.message, m_server.displayName(), m_ticket.destination.queue,
                         QString::number(jobId))};
    };
    // Does not cancel the job immediately: the server may have released the job or may read the request only
    // now, and would print a part of it. The second request is rejected if the first one has arrived.
    if (reason.kind != CupsErrorKind::Canceled) {
        const Result<void, CupsError> released = release(jobId);
        if (released)
            return {};
        if (released.error().kind == CupsErrorKind::Silent)
            return notKnown();
    }
    BackgroundTask task;
    Result<CupsConnection, CupsError> connection = CupsConnection::open(m_server, task);
    const Result<JobStatus, CupsError> job = connection ? ask(connection.value(), jobId) : connection.error();
    if (!job)
        return notKnown();
    if (job.value().state == JobState::Canceled || job.value().state == JobState::Aborted)
        return isOver(job.value(), reason);
    if (job.value().state == JobState::Held && m_hold.isStillOn(job.value().heldUntil))
        return cancel(jobId, reason);
    return {};
}

Result<void, CupsError> JobFate::release(int jobId) const
{
    BackgroundTask task;
    Result<CupsConnection, CupsError> connection = CupsConnection::open(m_server, task);
    if (!connection)
        return connection.error();
    return m_hold.end(connection.value(), m_ticket.destination.queue, jobId);
}

CupsError JobFate::cancel(int jobId, const CupsError &reason) const
{
    BackgroundTask task;
    const Result<void, CupsError> canceled = cancelJob(m_server, m_ticket.destination.queue, jobId, task);
    return canceled ? reason : isLeft(jobId, reason, canceled.error());
}

CupsError JobFate::mayBePrinted(int jobId, const CupsError &reason) const
{
    return {
        CupsErrorKind::OutcomeUnknown,
        JobFateText::tr("%1 Job %2-%3 on the print server \"%4\" may have been printed; check the queue "
                        "before you print again.")
            .arg(reason.message, m_ticket.destination.queue, QString::number(jobId), m_server.displayName())};
}

CupsError JobFate::isLeft(int jobId, const CupsError &reason, const CupsError &obstacle) const
{
    const QString state =
        m_hold.isNeeded()
            ? JobFateText::tr("%1 Job %2-%3 could not be canceled; it is held on the print server \"%4\" and "
                              "is not printed unless it is released.")
                  .arg(reason.message, m_ticket.destination.queue, QString::number(jobId),
                       m_server.displayName())
            : JobFateText::tr("%1 Job %2-%3 could not be canceled; check the queue before you print again.")
                  .arg(reason.message, m_ticket.destination.queue, QString::number(jobId));
    // The kind is not that of the reason, even for a canceled upload.
    const bool isSameObstacle = obstacle.message == reason.message;
    return {CupsErrorKind::OutcomeUnknown, isSameObstacle ? state : state + u' ' + obstacle.message};
}

CupsError JobFate::isOver(const JobStatus &job, const CupsError &reason) const
{
    return {CupsErrorKind::Rejected,
            JobFateText::tr("%1 Job %2-%3: %4")
                .arg(reason.message, job.queue, QString::number(job.jobId), job.sentences().join(u' '))};
}

} // namespace jobs
} // namespace cups
} // namespace host
