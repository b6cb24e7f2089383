// SPDX-License-Identifier: Apache-2.0
#include "JobSearch.h"

#include <array>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

/// Returns the number of the job with the UUID in a response to Get-Jobs.
std::optional<int> jobWith(const QByteArray &uuid, ipp_t *jobs)
{
    // The jobs follow each other, separated by an attribute without a name.
    std::optional<int> jobId;
    bool isMeant = false;
    for (ipp_attribute_t *each = ippFirstAttribute(jobs); each; each = ippNextAttribute(jobs)) {
        const QByteArray name = ippGetName(each);
        if (name.isEmpty()) {
            jobId.reset();
            isMeant = false;
        }
        if (name == "job-id")
            jobId = ippGetInteger(each, 0);
        if (name == "job-uuid")
            isMeant = uuid == ippGetString(each, 0, nullptr);
        if (isMeant && jobId)
            return jobId;
    }
    return std::nullopt;
}

} // namespace

Result<std::optional<int>, CupsError> findJob(CupsConnection &connection, const QString &queue,
                                              const QByteArray &uuid)
{
    constexpr std::array wanted = {"job-id", "job-uuid"};
    IppPointer request = connection.newRequest(IPP_OP_GET_JOBS, queue);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const Result<IppPointer, CupsError> jobs = connection.exchange(std::move(request), queueResource(queue));
    if (!jobs)
        return jobs.error();
    return jobWith(uuid, jobs.value().get());
}

} // namespace jobs
} // namespace cups
} // namespace host
