// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/cups/jobs/LeftJob.h>
#include <host/cups/server/Background.h>

namespace dialog {
inline namespace job {

/// Shows, one after another, the jobs that killed programs have left on print servers, and offers to cancel
/// or release them. A job is not changed until the user presses a button.
class LeftJobBanner : public Banner {
    Q_OBJECT

public:
    /// The server supplies the prompts for passwords and trust; each request is sent to the job's own server.
    LeftJobBanner(host::CupsServer server, QWidget *parent);

    /// Reads the journal and shows the jobs that are left, and the damaged files. Sends no request to a
    /// server.
    void lookForJobs();

private:
    void showNext();
    void settle(host::LeftJobAction action);
    void takeOutcome(const host::Result<QString, host::CupsError> &outcome);

    host::CupsServer m_server;
    std::vector<host::JobRecord> m_jobs;
    /// Shown before the sentence about the next job: the damaged files, or the result for the previous job.
    QStringList m_messages;
    host::Background m_background;
};

} // namespace job
} // namespace dialog
