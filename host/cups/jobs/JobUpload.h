// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobTicket.h"

#include <host/cups/server/CupsConnection.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The progress of an upload.
struct UploadProgress {
    /// The index of the current document, from 0.
    int document = 0;
    /// The bytes sent and the total, of all documents; the total is absent if a document is read from
    /// standard input.
    qint64 sent = 0;
    std::optional<qint64> total = 0;
};

/// Sends a job with all its documents and returns its number. For background tasks.
///
/// Lays out the pages of the documents, if requested, and opens all documents before it creates the job: a
/// missing or damaged document leaves nothing on the server. If a later
/// step fails or the task is canceled, it cancels the job, so that nothing is printed and sending the job
/// again prints it once. If a response of the server is missing, it queries the server: a job with all its
/// documents counts as sent. Returns CupsErrorKind::OutcomeUnknown, with a description, if something may be
/// left on the server or printed. The server prints nothing of a job before it has all of it: see JobHold.
/// Calls progress on the task's thread.
Result<int, CupsError> uploadJob(const CupsServer &server, const JobTicket &ticket, BackgroundTask &task,
                                 const std::function<void(const UploadProgress &)> &progress);

} // namespace jobs
} // namespace cups
} // namespace host
