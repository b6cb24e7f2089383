// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/cups/jobs/LeftJob.h>
#include <host/cups/server/Background.h>

namespace dialog {
inline namespace job {

/// Shows, one after the other, the jobs that killed programs have left on print servers, and offers to cancel
/// or release them. A job stays as it is until the user presses a button.
class LeftJobBanner : public Banner {
    Q_OBJECT

public:
    /// The server says how the user is asked for passwords.
    LeftJobBanner(host::CupsServer server, QWidget *parent);

    /// Reads the journal and shows what is left. Asks no server.
    void lookForJobs();

private:
    void showNext();
    void settle(host::LeftJobAction action);
    void takeOutcome(const host::Result<QString, host::CupsError> &outcome);

    host::CupsServer m_server;
    std::vector<host::JobRecord> m_jobs;
    /// What is to be read before the next job: damaged files, and the state of the job before.
    QStringList m_news;
    host::Background m_background;
};

} // namespace job
} // namespace dialog
