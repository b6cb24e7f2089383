// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace dialog {
inline namespace job {

/// Shows the progress of sending a job, with a button to cancel it. Hidden while no job is being sent.
class SendBar : public QWidget {
    Q_OBJECT

public:
    /// Creates a hidden bar.
    explicit SendBar(QWidget *parent);

    /// Shows the bar for the job of this name, without known progress.
    void begin(const QString &title);
    /// Shows the progress in percent; absent if it is not known.
    void setProgress(std::optional<int> percent);
    /// Disables the button while the job is being canceled, which takes a while on a slow connection.
    void showCanceling();
    /// Hides the bar.
    void end();

Q_SIGNALS:
    /// Emitted when the user presses the button.
    void canceled();

private:
    QLabel *m_title;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace job
} // namespace dialog
