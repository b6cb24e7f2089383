// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobOptions.h>

#include <QWidget>

class QComboBox;
class QLineEdit;
class QSpinBox;
class QTimeEdit;

namespace dialog {
inline namespace job {

/// What is asked of the print server: the job's name, how it lies on the paper, when it is printed, and
/// before which others. As long as nothing is chosen, the queue's own settings hold.
class JobPage : public QWidget {
    Q_OBJECT

public:
    explicit JobPage(QWidget *parent);

    /// Shows orientation, hold and priority, quietly; a hold that the page does not know is kept as it is.
    void setSettings(const host::JobSettings &settings);
    /// Orientation, hold and priority; copies, collating and pages are not set here and stay empty.
    host::JobSettings settings() const;

    /// The job's name, as the user wrote it.
    QString title() const;
    void setTitle(const QString &title);

Q_SIGNALS:
    /// The user changed something.
    void changed();

private:
    void build();
    void fillOrientations();
    void fillHolds();
    void showHold(const QString &hold);
    void holdChosen();
    std::optional<QString> hold() const;

    QLineEdit *m_title;
    QComboBox *m_orientation;
    QComboBox *m_hold;
    QTimeEdit *m_time;
    QSpinBox *m_priority;
};

} // namespace job
} // namespace dialog
