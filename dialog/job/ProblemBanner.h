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

/// Tells everything that keeps the user from printing, or from printing as wished. No problem hides another:
/// that a job may be printed after all must not vanish because the server is gone as well.
class ProblemBanner : public Banner {
    Q_OBJECT

public:
    explicit ProblemBanner(QWidget *parent)
        : Banner(parent)
    {
    }

    /// Tells from now on what goes wrong between the session and its server, until it goes well again, and
    /// offers to try again what nobody tries by itself. The session must outlive the banner.
    void follow(host::QueueSession &session);
    /// Why the job was not sent; empty when there is nothing to say about it.
    void setSendingProblem(const QString &problem);
    const QString &sendingProblem() const { return m_sending; }
    /// What was requested and the printer cannot do, and the sentences about what its panel does instead.
    void setRefusals(const std::vector<host::ChoiceError> &refusals, const QStringList &replaced);

private:
    void setServerProblem(const std::optional<host::CupsError> &problem);
    void refresh();

    QString m_sending;
    /// What the server said last when it could not be asked.
    std::optional<host::CupsError> m_server;
    QString m_refusals;
};

} // namespace job
} // namespace dialog
