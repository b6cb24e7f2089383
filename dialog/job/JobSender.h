// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/SetupJob.h>

#include <QObject>

namespace dialog {
inline namespace job {

/// A job that is ready to be sent. The references and pointers are not owned.
struct ReadyJob {
    const host::Ticket &ticket;
    const host::LabelDocument &document;
    /// The path of the printer's PPD file; empty if there is none.
    QString ppdPath;
    /// The strip as the preview shows it, and its renderer. Null if there is no paper or no strip is printed.
    const host::CutPlan *plan = nullptr;
    const host::LabelRenderer *renderer = nullptr;
};

/// Sends the jobs of the dialog. The result is reported during send() or later; until then, send() is not
/// called again.
class JobSender : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Sends the job; results in sent() or failed(). The objects to which the job refers are used only during
    /// the call.
    virtual void send(const ReadyJob &job) = 0;
    /// Returns whether the sender needs the plan of the strip with all lengths; a print server does not.
    virtual bool needsStrip() const { return false; }
    /// Cancels the job while it is being sent; results in failed(), or in sent() if everything was already
    /// sent.
    virtual void cancel() = 0;

Q_SIGNALS:
    /// Emitted during sending with the percentage that has been sent; -1 if it is not known.
    void progressed(int percent);
    /// Emitted when the job has been sent.
    void sent();
    /// Emitted when the job was not sent. Nothing is printed unless the text states otherwise. The text is
    /// empty if the user canceled the job.
    void failed(const QString &error);
};

} // namespace job
} // namespace dialog
