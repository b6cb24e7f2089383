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

/// The settings that the print server applies: the job's name, its orientation, scaling, when it is printed,
/// and its priority. A setting without a chosen value is absent, and the queue's default applies.
class JobPage : public QWidget {
    Q_OBJECT

public:
    /// Creates the page without settings and without a name.
    explicit JobPage(QWidget *parent);

    /// Shows orientation, scaling, hold and priority without emitting a signal. A value of hold that the page
    /// does not know is kept unchanged.
    void setSettings(const host::JobSettings &settings);
    /// Returns orientation, scaling, hold and priority. Copies, pages and order are not set on this page and
    /// are absent.
    host::JobSettings settings() const;

    /// The job's name, as the user has entered it.
    QString title() const;
    void setTitle(const QString &title);

Q_SIGNALS:
    /// Emitted when the user has changed a setting or the name.
    void changed();

private:
    void build();
    void fillOrientations();
    void fillScalings();
    void fillHolds();
    void showHold(const QString &hold);
    void holdChosen();
    std::optional<QString> hold() const;

    QLineEdit *m_title;
    QComboBox *m_orientation;
    QComboBox *m_scaling;
    QComboBox *m_hold;
    QTimeEdit *m_time;
    QSpinBox *m_priority;
};

} // namespace job
} // namespace dialog
