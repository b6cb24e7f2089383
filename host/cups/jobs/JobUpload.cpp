// SPDX-License-Identifier: Apache-2.0
#include "JobUpload.h"

#include "DocumentSource.h"
#include "JobFate.h"
#include "JobJournal.h"

#include <host/base/OutOfMemory.h>
#include <host/cups/queues/DiscoveredQueue.h>
#include <host/documents/LaidOutPdf.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QUuid>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobUploadText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobUpload)
};

/// The upload of one job over one connection.
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
    /// Returns the job's record for the journal.
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
    /// Whether the last document was sent completely and the response to it is missing.
    bool isDocumentUnanswered() const { return m_isDocumentUnanswered; }
    bool isAnswerMissing() const { return m_connection.isAnswerMissing(); }

    Result<int, CupsError> createJob()
    {
        IppPointer request = m_connection.newRequest(IPP_OP_CREATE_JOB, m_ticket.destination.queue);
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                     sendableTitle(m_ticket.title).toUtf8().constData());
        // Identifies the job if the response is missing; names are not unique.
        ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_URI, "job-uuid", nullptr, m_uuid.constData());
        encodeJobOptions(request.get(), m_hold.optionsForCreation(m_ticket));
        const Result<IppPointer, CupsError> answer =
            m_connection.exchangeUncancelable(std::move(request), queueResource(m_ticket.destination.queue));
        if (!answer)
            return answer.error();
        m_jobId = ippGetInteger(ippFindAttribute(answer.value().get(), "job-id", IPP_TAG_INTEGER), 0);
        return m_jobId;
    }

    /// Sends the documents. Returns no value, or the error.
    Result<void, CupsError> sendDocuments(std::vector<DocumentSource> &sources,
                                          const std::function<void(const UploadProgress &)> &progress)
    {
        UploadProgress now;
        for (const DocumentSource &source : sources)
            now.total =
                source.size() && now.total ? std::optional(*now.total + *source.size()) : std::nullopt;
        for (std::size_t i = 0; i < sources.size(); ++i) {
            now.document = static_cast<int>(i);
            progress(now);
            Result<void, CupsError> sent = send(sources[i], i + 1 == sources.size(), now, progress);
            if (!sent)
                return sent;
        }
        return {};
    }

    /// Releases the job when the server has all documents. Returns the reason if the job is still held.
    Result<void, CupsError> release()
    {
        if (m_hold.isNeeded() && m_task.isCanceled())
            return m_connection.noAnswer();
        return m_hold.end(m_connection, m_ticket.destination.queue, m_jobId);
    }

private:
    IppPointer documentRequest(const JobDocument &document, bool isLast) const
    {
        const QByteArray name = QFileInfo(document.shownName()).fileName().toUtf8();
        const QByteArray format = document.format.isEmpty() ? CUPS_FORMAT_AUTO : document.format;
        IppPointer request =
            m_connection.newRequest(IPP_OP_SEND_DOCUMENT, m_ticket.destination.queue, m_jobId);
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                     name.constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                     format.constData());
        ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
        return request;
    }

    Result<void, CupsError> send(DocumentSource &source, bool isLast, UploadProgress &now,
                                 const std::function<void(const UploadProgress &)> &progress)
    {
        const UploadProgress before = now;
        // One attempt without a password and three with one.
        constexpr int maxAttempts = 4;
        for (int attempt = 1;; ++attempt) {
            now = before;
            Result<void, CupsError> sent = sendOnce(source, isLast, now, progress);
            if (sent || !m_connection.documentNeedsPassword() || !source.rewind())
                return sent;
            // The server has checked the document's request only after it received the document.
            Result<void, CupsError> authenticated = m_connection.authenticateDocument();
            if (!authenticated)
                return authenticated;
            if (attempt == maxAttempts)
                return sent;
        }
    }

    Result<void, CupsError> sendOnce(DocumentSource &source, bool isLast, UploadProgress &now,
                                     const std::function<void(const UploadProgress &)> &progress)
    {
        const JobDocument &document = m_ticket.documents[static_cast<std::size_t>(now.document)];
        if (m_task.isCanceled())
            return m_connection.noAnswer();
        Result<void, CupsError> begun = m_connection.beginDocument(documentRequest(document, isLast),
                                                                   queueResource(m_ticket.destination.queue));
        if (!begun)
            return begun;
        bool isWhole = false;
        while (!m_task.isCanceled()) {
            const Result<QByteArray, CupsError> piece = source.read(m_task);
            if (!piece)
                return piece.error();
            isWhole = piece.value().isEmpty();
            if (isWhole || !m_connection.writeDocument(piece.value()))
                break;
            now.sent += piece.value().size();
            progress(now);
        }
        if (m_task.isCanceled())
            return m_connection.noAnswer();
        // A server that has read enough responds before the end, with the reason; some servers then close the
        // connection.
        const Result<IppPointer, CupsError> answer =
            isWhole ? m_connection.finishDocument() : m_connection.earlyAnswer();
        m_isDocumentUnanswered = isWhole && isLast && m_connection.isAnswerMissing() && !m_task.isCanceled();
        if (!answer)
            return answer.error();
        if (!isWhole)
            return cutShort(document);
        return {};
    }

    /// A server that accepts a part of a document would print that part.
    CupsError cutShort(const JobDocument &document) const
    {
        return {CupsErrorKind::Rejected,
                JobUploadText::tr("The print server \"%1\" did not receive all of \"%2\".")
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

/// A document as it is sent.
struct PreparedDocument {
    DocumentSource source;
    /// The file with the pages that are laid out; null if the document itself is sent.
    std::unique_ptr<platform::TemporaryFile> laidOut;
};

Result<PreparedDocument, CupsError> prepare(const JobDocument &document, const BackgroundTask &task)
{
    Result<DocumentSource, CupsError> original = DocumentSource::open(document.path, document.stamp);
    if (!original)
        return original.error();
    if (!document.layout)
        return PreparedDocument{std::move(original).value(), nullptr};
    auto laidOut = layOutPdf(document.path, *document.layout, [&task] { return task.isCanceled(); });
    if (!laidOut)
        return CupsError{CupsErrorKind::BadDocument,
                         documentError(laidOut.error(), document.shownName()).message};
    // The pages that were laid out are those that were shown only if the file has not changed meanwhile.
    Result<DocumentSource, CupsError> same = DocumentSource::open(document.path, document.stamp);
    if (!same)
        return same.error();
    if (!laidOut.value())
        return PreparedDocument{std::move(same).value(), nullptr};
    Result<DocumentSource, CupsError> source = DocumentSource::open(laidOut.value()->fileName());
    if (!source)
        return source.error();
    return PreparedDocument{std::move(source).value(), std::move(laidOut).value()};
}

/// Sends the documents of a job that the server has created, and releases the job. Returns
/// why the job is not printed, with its state.
Result<void, CupsError> finish(Upload &upload, const JobFate &fate, std::vector<DocumentSource> &sources,
                               int jobId, const std::function<void(const UploadProgress &)> &progress)
{
    if (const Result<void, CupsError> sent = upload.sendDocuments(sources, progress); !sent)
        return upload.isDocumentUnanswered() ? fate.ofUnansweredDocument(jobId, sent.error())
                                             : fate.cancel(jobId, sent.error());
    if (const Result<void, CupsError> released = upload.release(); !released)
        return fate.ofFailedRelease(jobId, released.error());
    return {};
}

/// Creates the job and sends it. Returns its number, or why it is not printed, with its state.
Result<int, CupsError> send(Upload &upload, const JobFate &fate, JobJournalEntry &entry,
                            std::vector<DocumentSource> &sources,
                            const std::function<void(const UploadProgress &)> &progress)
{
    const Result<int, CupsError> job = upload.createJob();
    if (!job)
        return upload.isAnswerMissing() ? fate.ofUnansweredCreation(upload.uuid(), job.error()) : job.error();
    entry.setJobId(job.value());
    const Result<void, CupsError> finished = finish(upload, fate, sources, job.value(), progress);
    return finished ? job : finished.error();
}

} // namespace

Result<int, CupsError> uploadJob(const CupsServer &server, const JobTicket &ticket, BackgroundTask &task,
                                 const std::function<void(const UploadProgress &)> &progress)
{
    std::vector<DocumentSource> sources;
    std::vector<std::unique_ptr<platform::TemporaryFile>> laidOut;
    for (const JobDocument &document : ticket.documents) {
        Result<PreparedDocument, CupsError> prepared = prepare(document, task);
        if (!prepared)
            return prepared.error();
        sources.push_back(std::move(prepared.value().source));
        laidOut.push_back(std::move(prepared.value().laidOut));
    }
    if (sources.empty())
        return CupsError{CupsErrorKind::BadDocument, JobUploadText::tr("There is no document to print.")};

    if (const JobOption *const option = findUnsendable(ticket.options))
        return CupsError{
            CupsErrorKind::Rejected,
            JobUploadText::tr(
                "The choice \"%1\" of the option \"%2\" cannot be sent: print servers do not pass it on.")
                .arg(QString::fromUtf8(option->value), QString::fromUtf8(option->name))};

    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    if (const Result<void, CupsError> made = ensureQueue(connection.value(), ticket.destination, task); !made)
        return made.error();
    if (task.isCanceled())
        return connection.value().noAnswer();
    const Result<JobHold, CupsError> hold = JobHold::forTicket(connection.value(), ticket);
    if (!hold)
        return hold.error();
    if (task.isCanceled())
        return connection.value().noAnswer();
    Upload upload(connection.value(), ticket, hold.value(), task);
    JobJournalEntry entry(upload.record());
    OutOfMemory::setJobProgress(JobProgress::Underway);
    Result<int, CupsError> job =
        send(upload, JobFate(server, ticket, hold.value()), entry, sources, progress);
    // The next program that starts reports what may be left on the server.
    if (job || job.error().kind != CupsErrorKind::OutcomeUnknown) {
        OutOfMemory::setJobProgress(job ? JobProgress::Printed : JobProgress::Nothing);
        entry.remove();
    }
    return job;
}

} // namespace jobs
} // namespace cups
} // namespace host
