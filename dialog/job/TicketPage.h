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

/// Shows the ticket that will be sent: every option of the job with its origin, and the lp command that
/// prints the same job.
class TicketPage : public QWidget {
    Q_OBJECT

public:
    /// Creates an empty page.
    explicit TicketPage(QWidget *parent);

    /// Replaces the contents with this ticket, as it is sent to the server.
    void setTicket(const host::CupsServer &server, const host::JobTicket &ticket);

private:
    QTreeWidget *m_options;
    QLineEdit *m_line;
    QLabel *m_differences;
};

} // namespace job
} // namespace dialog
