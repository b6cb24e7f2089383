// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobMonitor.h>

#include <QDialog>

class QPushButton;

namespace dialog {
inline namespace widgets {
class FittedLabel;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace job {

/// Shows the state of a job that has been sent until the job is over, with a button to cancel it. Closes by
/// itself when the job has been printed.
class JobWindow : public QDialog {
    Q_OBJECT

public:
    /// Starts to monitor the job; the title is the job's name.
    JobWindow(const host::CupsServer &server, const QString &queue, int jobId, const QString &title,
              QWidget *parent = nullptr);

    /// The last reported state of the job; absent before the first response.
    const std::optional<host::JobStatus> &status() const { return m_status; }

private:
    void showMessage(const QString &words);
    void showStatus(const host::JobStatus &status);

    host::JobMonitor m_monitor;
    std::optional<host::JobStatus> m_status;
    FittedLabel *m_words;
    QPushButton *m_cancel;
};

} // namespace job
} // namespace dialog
