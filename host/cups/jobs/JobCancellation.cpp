// SPDX-License-Identifier: Apache-2.0
#include "JobCancellation.h"

namespace host {
inline namespace cups {
inline namespace jobs {

Result<void, CupsError> cancelJob(const CupsServer &server, const QString &queue, int jobId,
                                  BackgroundTask &task)
{
    Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
    if (!connection)
        return connection.error();
    IppPointer request = connection.value().newRequest(IPP_OP_CANCEL_JOB, queue, jobId);
    return connection.value().exchange(std::move(request), "/jobs").withoutValue();
}

} // namespace jobs
} // namespace cups
} // namespace host
