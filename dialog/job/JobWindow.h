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

/// Follows a job that has been sent until nothing more will happen to it, with a button to take it back.
/// Closes by itself when the job is printed.
class JobWindow : public QDialog {
    Q_OBJECT

public:
    JobWindow(const host::CupsServer &server, const QString &queue, int jobId, const QString &title,
              QWidget *parent = nullptr);

    /// The job as it was told of last; nothing before the first answer.
    const std::optional<host::JobStatus> &status() const { return m_status; }

private:
    void showWords(const QString &words);
    void showStatus(const host::JobStatus &status);

    host::JobMonitor m_monitor;
    std::optional<host::JobStatus> m_status;
    FittedLabel *m_words;
    QPushButton *m_cancel;
};

} // namespace job
} // namespace dialog
