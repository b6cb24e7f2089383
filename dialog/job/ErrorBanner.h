// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/cups/jobs/ChoiceCheck.h>
#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace queues {
class QueueSession;
} // namespace queues
} // namespace cups
} // namespace host

namespace dialog {
inline namespace job {

/// Shows all errors that prevent printing, or printing as requested. No error hides another: the message that
/// a job may have been printed after all must stay when the server cannot be reached any more.
class ErrorBanner : public Banner {
    Q_OBJECT

public:
    /// Creates a hidden banner.
    explicit ErrorBanner(QWidget *parent)
        : Banner(parent)
    {
    }

    /// Shows the errors of the session until the server responds again or another destination is chosen.
    /// Offers to retry after those errors after which the session does not retry by itself. The session must
    /// outlive the banner.
    void follow(host::QueueSession &session);
    /// The message about a job that was not sent; absent if there is no such error.
    void setSendError(const std::optional<QString> &error);
    const std::optional<QString> &sendError() const { return m_sending; }
    /// Shows the errors about requested choices that the printer does not have, and the sentences about what
    /// its panel does instead.
    void setChoiceErrors(const std::vector<host::ChoiceError> &choiceErrors, const QStringList &replaced);

private:
    void setServerError(const std::optional<host::CupsError> &error);
    void refresh();

    std::optional<QString> m_sending;
    /// The last error of the session; absent if there is none.
    std::optional<host::CupsError> m_server;
    QString m_choiceErrors;
};

} // namespace job
} // namespace dialog
