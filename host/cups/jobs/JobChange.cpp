// SPDX-License-Identifier: Apache-2.0
#include "JobChange.h"

#include "JobTicket.h"

#include <QCoreApplication>
#include <QUrl>

#include <tuple>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobChangeText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobChange)
};

bool isRestart(const JobChange &change)
{
    return change.settings.hold == QStringLiteral("restart");
}

/// Returns the value of "job-hold-until" that holds the job; empty if the job is not to be held.
QByteArray holdUntil(const JobChange &change)
{
    for (const JobOption &option : makeJobOptions({}, nullptr, {}, {.hold = change.settings.hold})) {
        if (option.name == "job-hold-until" && option.value != "no-hold" && !isRestart(change))
            return option.value;
    }
    return {};
}

/// Returns the changes by their IPP and PPD names, without the hold.
std::vector<JobOption> changedOptions(const JobChange &change)
{
    JobSettings settings = change.settings;
    if (isRestart(change) || !holdUntil(change).isEmpty())
        settings.hold.reset();
    std::vector<JobChoice> choices = change.options;
    if (change.title)
        choices.push_back({"job-name", sendableTitle(*change.title).toUtf8()});
    return makeJobOptions({}, nullptr, choices, settings);
}

/// Returns the URI of the job, which remains valid when the job moves to another queue.
QByteArray jobUri(int jobId)
{
    return "ipp://localhost/jobs/" + QByteArray::number(jobId);
}

/// Sends requests about one job over one connection.
class JobRequests {
public:
    JobRequests(CupsConnection &connection, int jobId)
        : m_connection(connection)
        , m_jobId(jobId)
    {
    }

    /// Sends a request. An empty hold is not sent.
    Result<void, CupsError> send(ipp_op_t operation, const std::vector<JobOption> &options,
                                 const QByteArray &hold)
    {
        IppPointer request = m_connection.newRequest(operation);
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                     jobUri(m_jobId).constData());
        encodeJobOptions(request.get(), options);
        // RFC 8011: a time of day is of type name; cupsd rejects a keyword here.
        if (!hold.isEmpty())
            ippAddString(request.get(), IPP_TAG_JOB, hold.contains(':') ? IPP_TAG_NAME : IPP_TAG_KEYWORD,
                         "job-hold-until", nullptr, hold.constData());
        return m_connection.exchange(std::move(request), "/jobs").withoutValue();
    }

    Result<void, CupsError> change(const std::vector<JobOption> &options, const QByteArray &hold)
    {
        Result<void, CupsError> changed = send(IPP_OP_SET_JOB_ATTRIBUTES, options, hold);
        // The job is held now, but the server still reports the old time; this request corrects it. Its
        // result does not matter for the job.
        if (changed && !hold.isEmpty())
            std::ignore = send(IPP_OP_HOLD_JOB, {}, hold);
        return changed;
    }

    /// The server accepts no changes in the restart request, and without a hold it would print the job before
    /// they arrive.
    Result<void, CupsError> restart(const std::vector<JobOption> &options)
    {
        if (options.empty())
            return send(IPP_OP_RESTART_JOB, {}, {});
        if (Result<void, CupsError> restarted = send(IPP_OP_RESTART_JOB, {}, "indefinite"); !restarted)
            return restarted;
        Result<void, CupsError> changed = send(IPP_OP_SET_JOB_ATTRIBUTES, options, "no-hold");
        if (changed)
            return changed;
        CupsError error = changed.error();
        error.message = JobChangeText::tr("It is printed again, but held. %1").arg(error.message);
        return error;
    }

private:
    CupsConnection &m_connection;
    int m_jobId;
};

} // namespace

bool JobChange::isEmpty() const
{
    return !isRestart(*this) && holdUntil(*this).isEmpty() && changedOptions(*this).empty();
}

CupsError notChanged(int jobId, CupsError reason)
{
    reason.message = JobChangeText::tr("Job %1 was not changed. %2").arg(jobId).arg(reason.message);
    return reason;
}

Result<QString, CupsError> queueOfJob(const CupsServer &server, int jobId, BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    IppPointer request = connection.value().newRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 jobUri(jobId).constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "job-printer-uri");
    const Result<IppPointer, CupsError> answer = connection.value().exchange(std::move(request), "/jobs");
    if (!answer)
        return answer.error();
    const char *const uri =
        ippGetString(ippFindAttribute(answer.value().get(), "job-printer-uri", IPP_TAG_URI), 0, nullptr);
    return QUrl(QString::fromUtf8(uri)).fileName();
}

Result<void, CupsError> changeJob(const CupsServer &server, const JobChange &change, BackgroundTask &task)
{
    if (change.isEmpty())
        return {};
    const auto told = [&](const CupsError &error) { return notChanged(change.jobId, error); };
    const std::vector<JobOption> options = changedOptions(change);
    if (const JobOption *const option = findUnsendable(options))
        return told(
            {CupsErrorKind::Rejected,
             JobChangeText::tr(
                 "The choice \"%1\" of the option \"%2\" cannot be sent: print servers do not pass it on.")
                 .arg(QString::fromUtf8(option->value), QString::fromUtf8(option->name))});
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return told(connection.error());
    JobRequests requests(connection.value(), change.jobId);
    const Result<void, CupsError> changed =
        isRestart(change) ? requests.restart(options) : requests.change(options, holdUntil(change));
    if (!changed)
        return told(changed.error());
    return {};
}

} // namespace jobs
} // namespace cups
} // namespace host
