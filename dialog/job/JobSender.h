// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/SetupJob.h>

#include <QObject>

#include <optional>

namespace dialog {
inline namespace job {

/// A job that is ready to be sent. The references and pointers are not owned.
struct ReadyJob {
    const host::Ticket &ticket;
    const host::LabelDocument &document;
    /// The path of the printer's PPD file; absent if there is none.
    std::optional<QString> ppdPath;
    /// The strip as the preview shows it, and its renderer. Null if there is no paper or no strip is printed.
    const host::CutPlan *plan = nullptr;
    const host::LabelRenderer *renderer = nullptr;
};

/// Sends the jobs of the dialog. The result is reported during send() or later by one of the signals sent(),
/// failed() and canceled(); until then, send() is not called again.
class JobSender : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Sends the job. The objects to which the job refers are used only during
    /// the call.
    virtual void send(const ReadyJob &job) = 0;
    /// Returns whether the sender needs the plan of the strip with all lengths; a print server does not.
    virtual bool needsStrip() const { return false; }
    /// Cancels the job while it is being sent. Results in canceled(), in sent() if everything was already
    /// sent, or in failed() if the job cannot be canceled.
    virtual void cancel() = 0;

Q_SIGNALS:
    /// Emitted during sending with the percentage that has been sent; absent if it is not known.
    void progressed(std::optional<int> percent);
    /// Emitted when the job has been sent.
    void sent();
    /// Emitted when the job was not sent, with the message for the user. Nothing is printed unless the
    /// message states otherwise.
    void failed(const QString &error);
    /// Emitted when the job was canceled: nothing is printed.
    void canceled();
};

} // namespace job
} // namespace dialog
