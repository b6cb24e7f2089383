// SPDX-License-Identifier: Apache-2.0
#include "JobCancellation.h"

namespace host {

std::optional<CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                   BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    IppPointer request = connection.value().newRequest(IPP_OP_CANCEL_JOB, queue, jobId);
    const Result<IppPointer, CupsError> answer = connection.value().exchange(std::move(request), "/jobs");
    return answer ? std::nullopt : std::optional(answer.error());
}

} // namespace host
