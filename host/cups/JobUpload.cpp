// SPDX-License-Identifier: Apache-2.0
#include "JobUpload.h"

#include "DiscoveredQueue.h"
#include "DocumentSource.h"
#include "JobFate.h"
#include "JobJournal.h"

#include <host/OutOfMemory.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QUuid>

namespace host {

namespace {

struct JobUploadText {
    Q_DECLARE_TR_FUNCTIONS(host::JobUpload)
};

/// One job on its way, over one connection.
class Upload {
public:
    Upload(CupsConnection &connection, const JobTicket &ticket, const JobHold &hold, BackgroundTask &task)
        : m_connection(connection)
        , m_ticket(ticket)
        , m_hold(hold)
        , m_task(task)
    {
    }

    const QByteArray &uuid() const { return m_uuid; }
    /// The job as the journal keeps it.
    JobRecord record() const
    {
        const CupsServer &server = m_connection.server();
        return {.server = server.displayName(),
                .encrypts = server.encryption == Encryption::Required,
                .user = server.user,
                .queue = m_ticket.destination.queue,
                .title = sendableTitle(m_ticket.title),
                .uuid = m_uuid};
    }
    /// Whether the last document was sent to its last byte and its answer is missing.
    bool isDocumentUnanswered() const { return m_isDocumentUnanswered; }
    bool lacksAnswer() const { return m_connection.lacksAnswer(); }

    Result<int, CupsError> createJob()
    {
        IppPointer request = m_connection.newRequest(IPP_OP_CREATE_JOB, m_ticket.destination.queue);
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                     sendableTitle(m_ticket.title).toUtf8().constData());
        // By this the job is found again when the answer is lost; names are not unique.
        ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_URI, "job-uuid", nullptr, m_uuid.constData());
        encodeJobOptions(request.get(), m_hold.optionsForCreation(m_ticket));
        const Result<IppPointer, CupsError> answer =
            m_connection.exchangeToTheEnd(std::move(request), queueResource(m_ticket.destination.queue));
        if (!answer)
            return answer.error();
        m_jobId = ippGetInteger(ippFindAttribute(answer.value().get(), "job-id", IPP_TAG_INTEGER), 0);
        return m_jobId;
    }

    /// Nothing, or why the documents could not be sent.
    std::optional<CupsError> sendDocuments(std::vector<DocumentSource> &sources,
                                           const std::function<void(const UploadProgress &)> &progress)
    {
        UploadProgress now;
        for (const DocumentSource &source : sources)
            now.total = source.size() < 0 || now.total < 0 ? -1 : now.total + source.size();
        for (std::size_t i = 0; i < sources.size(); ++i) {
            now.document = static_cast<int>(i);
            progress(now);
            if (std::optional<CupsError> error = send(sources[i], i + 1 == sources.size(), now, progress))
                return error;
        }
        return std::nullopt;
    }

    /// Releases the job when the server has all documents. Nothing, or why the job is still held.
    std::optional<CupsError> release()
    {
        if (m_hold.isNeeded() && m_task.isCancelled())
            return m_connection.noAnswer();
        return m_hold.end(m_connection, m_ticket.destination.queue, m_jobId);
    }

private:
    std::optional<CupsError> send(DocumentSource &source, bool isLast, UploadProgress &now,
                                  const std::function<void(const UploadProgress &)> &progress)
    {
        const JobDocument &document = m_ticket.documents[static_cast<std::size_t>(now.document)];
        const QByteArray queue = m_ticket.destination.queue.toUtf8();
        const QByteArray name = QFileInfo(document.shownName()).fileName().toUtf8();
        const QByteArray format = document.format.isEmpty() ? CUPS_FORMAT_AUTO : document.format;
        if (m_task.isCancelled())
            return m_connection.lastError();
        m_connection.beginWaiting();
        http_status_t status =
            knownStatus(cupsStartDocument(m_connection.http(), queue.constData(), m_jobId, name.constData(),
                                          format.constData(), isLast ? 1 : 0));
        const bool hasBegun = status == HTTP_STATUS_CONTINUE;
        bool isWhole = false;
        while (hasBegun && !m_task.isCancelled()) {
            const Result<QByteArray, CupsError> piece = source.read(m_task);
            if (!piece)
                return piece.error();
            isWhole = piece.value().isEmpty();
            if (isWhole || status == HTTP_STATUS_OK)
                break;
            m_connection.beginWaiting();
            status = knownStatus(cupsWriteRequestData(m_connection.http(), piece.value().constData(),
                                                      static_cast<std::size_t>(piece.value().size())));
            now.sent += piece.value().size();
            progress(now);
            if (status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_OK)
                break;
        }
        if (m_task.isCancelled() || !hasBegun || status >= HTTP_STATUS_MULTIPLE_CHOICES)
            return m_connection.lastError();
        // A server that has heard enough answers before the end, and says why; some close the connection
        // then.
        const Result<IppPointer, CupsError> answer =
            isWhole ? m_connection.finishDocument() : m_connection.earlyAnswer();
        m_isDocumentUnanswered = isWhole && isLast && m_connection.lacksAnswer() && !m_task.isCancelled();
        if (!answer)
            return answer.error();
        return isWhole ? std::nullopt : std::optional(cutShort(document));
    }

    /// A server that is content with a part of a document would print that part.
    CupsError cutShort(const JobDocument &document) const
    {
        return {CupsFailure::Refused, JobUploadText::tr("The print server \"%1\" did not take all of \"%2\".")
                                          .arg(m_connection.server().displayName(), document.shownName())};
    }

    CupsConnection &m_connection;
    const JobTicket &m_ticket;
    const JobHold &m_hold;
    BackgroundTask &m_task;
    const QByteArray m_uuid = "urn:uuid:" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    int m_jobId = 0;
    bool m_isDocumentUnanswered = false;
};

/// Sends the documents of a job that the server has created, and releases the job. Nothing, or why it is not
/// printed, with the state of the job.
std::optional<CupsError> finish(Upload &upload, const JobFate &fate, std::vector<DocumentSource> &sources,
                                int jobId, const std::function<void(const UploadProgress &)> &progress)
{
    if (const std::optional<CupsError> error = upload.sendDocuments(sources, progress))
        return upload.isDocumentUnanswered() ? fate.ofUnansweredDocument(jobId, *error)
                                             : fate.cancel(jobId, *error);
    if (const std::optional<CupsError> error = upload.release())
        return fate.ofFailedRelease(jobId, *error);
    return std::nullopt;
}

/// Creates the job and sends it. Its number, or why it is not printed, with the state of the job.
Result<int, CupsError> send(Upload &upload, const JobFate &fate, JobJournalEntry &entry,
                            std::vector<DocumentSource> &sources,
                            const std::function<void(const UploadProgress &)> &progress)
{
    const Result<int, CupsError> job = upload.createJob();
    if (!job)
        return upload.lacksAnswer() ? fate.ofUnansweredCreation(upload.uuid(), job.error()) : job.error();
    entry.setJobId(job.value());
    const std::optional<CupsError> error = finish(upload, fate, sources, job.value(), progress);
    return error ? Result<int, CupsError>(*error) : job;
}

} // namespace

std::optional<CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                   BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    IppPointer request = connection.value().newRequest(IPP_OP_CANCEL_JOB, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    const Result<IppPointer, CupsError> answer = connection.value().exchange(std::move(request), "/jobs");
    return answer ? std::nullopt : std::optional(answer.error());
}

Result<int, CupsError> uploadJob(const CupsServer &server, const JobTicket &ticket, BackgroundTask &task,
                                 const std::function<void(const UploadProgress &)> &progress)
{
    std::vector<DocumentSource> sources;
    for (const JobDocument &document : ticket.documents) {
        Result<DocumentSource, CupsError> source = DocumentSource::open(document.path, document.stamp);
        if (!source)
            return source.error();
        sources.push_back(std::move(source).value());
    }
    if (sources.empty())
        return CupsError{CupsFailure::BadDocument, JobUploadText::tr("There is no document to print.")};

    if (const JobOption *const option = findUnsendable(ticket.options))
        return CupsError{
            CupsFailure::Refused,
            JobUploadText::tr("No print server can pass on the choice \"%1\" of the option \"%2\".")
                .arg(QString::fromUtf8(option->value), QString::fromUtf8(option->name))};

    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    if (const std::optional<CupsError> error = ensureQueue(connection.value(), ticket.destination, task))
        return *error;
    if (task.isCancelled())
        return connection.value().lastError();
    const Result<JobHold, CupsError> hold = JobHold::forTicket(connection.value(), ticket);
    if (!hold)
        return hold.error();
    if (task.isCancelled())
        return connection.value().lastError();
    Upload upload(connection.value(), ticket, hold.value(), task);
    JobJournalEntry entry(upload.record());
    OutOfMemory::setJobProgress(JobProgress::Underway);
    Result<int, CupsError> job =
        send(upload, JobFate(server, ticket, hold.value()), entry, sources, progress);
    // The next program reports again what may be left on the server.
    if (job || job.error().kind != CupsFailure::OutcomeUnknown) {
        OutOfMemory::setJobProgress(job ? JobProgress::Printed : JobProgress::Nothing);
        entry.remove();
    }
    return job;
}

} // namespace host
