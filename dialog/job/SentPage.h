// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobTicket.h>
#include <host/cups/server/CupsServer.h>

#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace dialog {
inline namespace job {

/// What will be sent: every option of the job with where it comes from, and the lp line that prints the same.
class SentPage : public QWidget {
    Q_OBJECT

public:
    explicit SentPage(QWidget *parent);

    void setTicket(const host::CupsServer &server, const host::JobTicket &ticket);

private:
    QTreeWidget *m_options;
    QLineEdit *m_line;
    QLabel *m_differences;
};

} // namespace job
} // namespace dialog
