// SPDX-License-Identifier: Apache-2.0
#include "JobStatus.h"

#include <host/cups/queues/QueueText.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobStatusText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobStatus)
};

constexpr std::array requestedAttributes = {
    "job-hold-until", "job-media-sheets-completed", "job-printer-state-message", "job-printer-state-reasons",
    "job-state",      "job-state-reasons",          "number-of-documents",
};

QStringList texts(ipp_t *answer, const char *name)
{
    QStringList list;
    ipp_attribute_t *const attribute = ippFindAttribute(answer, name, IPP_TAG_ZERO);
    for (int i = 0; i < ippGetCount(attribute); ++i)
        list.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    list.removeAll(QStringLiteral("none"));
    return list;
}

QString heldSentence(const std::optional<QString> &until)
{
    if (!until || until == QStringLiteral("no-hold") || until == QStringLiteral("indefinite"))
        return JobStatusText::tr("Held until it is released.");
    return JobStatusText::tr("Held until %1.").arg(*until);
}

QString stateSentence(const JobStatus &job)
{
    switch (job.state) {
    case JobState::Waiting:
        return JobStatusText::tr("Waiting in the queue.");
    case JobState::Held:
        return heldSentence(job.heldUntil);
    case JobState::Printing:
        return JobStatusText::tr("Printing.");
    case JobState::Stopped:
        return JobStatusText::tr("Stopped; it continues when the printer is ready.");
    case JobState::Canceled:
        return JobStatusText::tr("Canceled.");
    case JobState::Aborted:
        return JobStatusText::tr("Aborted by the print server.");
    case JobState::Completed:
        if (job.isPurged)
            return JobStatusText::tr("The job is finished; the print server keeps no record of it.");
        return JobStatusText::tr("Printed.");
    }
    return {};
}

} // namespace

QStringList JobStatus::sentences() const
{
    QStringList all{stateSentence(*this)};
    if (!isOver()) {
        for (const QString &reason : printerReasons)
            all.append(stateReasonSentence(reason));
    }
    const bool addsInformation = !message.trimmed().isEmpty() && state != JobState::Completed &&
                                 state != JobState::Canceled && state != JobState::Held;
    if (addsInformation)
        all.append(JobStatusText::tr("Server message: %1").arg(message.trimmed()));
    return all;
}

Result<JobStatus, CupsError> queryJob(CupsConnection &connection, const QString &queue, int jobId)
{
    IppPointer request = connection.newRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue, jobId);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(requestedAttributes.size()), nullptr, requestedAttributes.data());
    const Result<IppPointer, CupsError> answer = connection.exchange(std::move(request), "/jobs");
    if (!answer)
        return answer.error();
    ipp_t *const attributes = answer.value().get();
    const auto number = [&](const char *name, ipp_tag_t tag) {
        return ippGetInteger(ippFindAttribute(attributes, name, tag), 0);
    };
    JobStatus job;
    job.jobId = jobId;
    job.queue = queue;
    job.state = static_cast<JobState>(std::clamp(number("job-state", IPP_TAG_ENUM), 3, 9));
    job.reasons = texts(attributes, "job-state-reasons");
    job.printerReasons = texts(attributes, "job-printer-state-reasons");
    job.message = texts(attributes, "job-printer-state-message").value(0);
    const QStringList hold = texts(attributes, "job-hold-until");
    if (!hold.isEmpty())
        job.heldUntil = hold.front();
    job.sheetsCompleted = number("job-media-sheets-completed", IPP_TAG_INTEGER);
    if (ippFindAttribute(attributes, "number-of-documents", IPP_TAG_INTEGER))
        job.documents = number("number-of-documents", IPP_TAG_INTEGER);
    return job;
}

} // namespace jobs
} // namespace cups
} // namespace host
