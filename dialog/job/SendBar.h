// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace dialog {
inline namespace job {

/// Tells how far the sending of a job is, with a button to take it back. Hidden while nothing is sent.
class SendBar : public QWidget {
    Q_OBJECT

public:
    explicit SendBar(QWidget *parent);

    void begin(const QString &title);
    /// 0 to 100; -1 when nobody can tell.
    void setProgress(int percent);
    /// Shows that somebody wants the sending to stop, which takes a while on a slow line.
    void showStopping();
    void end();

Q_SIGNALS:
    void cancelled();

private:
    QLabel *m_title;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace job
} // namespace dialog
