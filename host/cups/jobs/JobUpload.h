// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsConnection.h>

namespace host {

/// How far the sending of a job is.
struct UploadProgress {
    /// Counts from 0.
    int document = 0;
    /// Of all documents together, in bytes; the total is unknown (-1) when one comes from standard input.
    qint64 sent = 0;
    qint64 total = 0;
};

/// Sends a job with all its documents and answers its number. For tasks in the background.
///
/// All documents are opened before the job is made: a missing one leaves no trace on the server. When
/// anything fails later, or the task is cancelled, the job is canceled, so that nothing of it is
/// printed and sending it again prints it once. When the server's answer is lost, the server is asked what it
/// has: a job of which it has everything is sent. CupsFailure::OutcomeUnknown when something may be left on
/// the server or printed, in words. Nothing of a job is printed before the server has
/// all of it: see JobHold. The progress is reported on the task's thread.
Result<int, CupsError> uploadJob(const CupsServer &server, const JobTicket &ticket, BackgroundTask &task,
                                 const std::function<void(const UploadProgress &)> &progress);

} // namespace host
