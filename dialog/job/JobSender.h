// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/setup/SetupJob.h>

#include <QObject>

namespace dialog {
inline namespace job {

/// A job that is ready to leave the dialog.
struct ReadyJob {
    const host::Ticket &ticket;
    const host::LabelDocument &document;
    /// The printer's PPD file; empty without one.
    QString ppdPath;
    /// The strip as it is shown. Null without a paper, or where no strip is printed.
    const host::CutPlan *plan = nullptr;
    const host::LabelRenderer *renderer = nullptr;
};

/// Takes jobs from the dialog. The outcome may come at once or later; until then no other job is handed over.
class JobSender : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// One of sent() and failed() follows. What the job borrows is only used during the call.
    virtual void send(const ReadyJob &job) = 0;
    /// Whether the sender needs the plan of the strip with all lengths; a print server does not.
    virtual bool needsStrip() const { return false; }
    /// Takes the job back while it is on its way; failed() follows, or sent() if it was too late.
    virtual void cancel() = 0;

Q_SIGNALS:
    /// How much has been sent, 0 to 100; -1 when nobody can tell.
    void progressed(int percent);
    void sent();
    /// Nothing is printed. The text is empty when it was the user who took the job back.
    void failed(const QString &problem);
};

} // namespace job
} // namespace dialog
