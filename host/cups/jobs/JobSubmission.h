// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobUpload.h"

#include <host/cups/server/Background.h>

namespace host {

/// Sends one job after another from the main thread without making it wait, with progress and cancel.
class JobSubmission : public QObject {
    Q_OBJECT

public:
    /// Destroying it while a job is on its way takes the job back; a program that is about to end should
    /// cancel() and wait for the outcome instead.
    explicit JobSubmission(CupsServer server, QObject *parent = nullptr);

    /// Sends the job. One of submitted() and failed() follows; until then nothing else may be sent.
    void submit(const JobTicket &ticket);
    /// Whether a job is on its way.
    bool isBusy() const { return m_isBusy; }
    /// Stops sending and takes the job back. The outcome is failed() with CupsFailure::Cancelled; or
    /// submitted(), if all was sent already.
    void cancel();

Q_SIGNALS:
    void progressed(const host::UploadProgress &progress);
    /// The server has the job and all its documents.
    void submitted(int jobId);
    /// Nothing of the job is printed and nothing is left of it, unless this is CupsFailure::OutcomeUnknown:
    /// then the message says what may be left or printed.
    void failed(const host::CupsError &error);

private:
    CupsServer m_server;
    bool m_isBusy = false;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
};

} // namespace host
