// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobUpload.h"

#include <host/cups/server/Background.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Sends jobs one after another, from the main thread without blocking it, with progress and cancellation.
class JobSubmission : public QObject {
    Q_OBJECT

public:
    /// Destroying the object while a job is being sent cancels the job. A program that is about to end should
    /// call cancel() and wait for the result instead.
    explicit JobSubmission(CupsServer server, QObject *parent = nullptr);

    /// Sends the job. Emits submitted() or failed() when it is complete; until then, submit() must not be
    /// called again.
    void submit(const JobTicket &ticket);
    /// Whether a job is being sent.
    bool isBusy() const { return m_isBusy; }
    /// Stops sending and cancels the job. Results in failed() with CupsErrorKind::Canceled, or in submitted()
    /// if everything was already sent.
    void cancel();

Q_SIGNALS:
    /// Emitted when another part of the job has been sent.
    void progressed(const host::UploadProgress &progress);
    /// Emitted when the server has the job and all its documents.
    void submitted(int jobId);
    /// Emitted when the job was not sent. Nothing of it is printed or left on the server, except with
    /// CupsErrorKind::OutcomeUnknown: then the message describes what may be left or printed.
    void failed(const host::CupsError &error);

private:
    void finish(const Result<int, CupsError> &job);

    CupsServer m_server;
    bool m_isBusy = false;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
};

} // namespace jobs
} // namespace cups
} // namespace host
