// SPDX-License-Identifier: Apache-2.0
#include "ErrorBanner.h"

#include <host/cups/queues/QueueSession.h>

namespace dialog {
inline namespace job {

void ErrorBanner::follow(host::QueueSession &session)
{
    connect(&session, &host::QueueSession::failed, this,
            [this](const host::CupsError &error) { setServerError(error); });
    connect(&session, &host::QueueSession::recovered, this, [this] { setServerError({}); });
    // The errors of another printer do not apply to this one.
    connect(&session, &host::QueueSession::chosenChanged, this, [this] {
        m_sending.reset();
        setServerError({});
    });
    connect(this, &Banner::remedyClicked, &session, [this, &session] {
        setServerError({});
        session.retry();
    });
}

void ErrorBanner::setSendError(const std::optional<QString> &error)
{
    m_sending = error;
    refresh();
}

void ErrorBanner::setServerError(const std::optional<host::CupsError> &error)
{
    m_server = error;
    refresh();
}

void ErrorBanner::setChoiceErrors(const std::vector<host::ChoiceError> &choiceErrors,
                                  const QStringList &replaced)
{
    QStringList sentences;
    for (const host::ChoiceError &rejection : choiceErrors)
        sentences.append(rejection.message);
    const QString text = (sentences + replaced).join(u' ');
    if (text == m_choiceErrors)
        return;
    m_choiceErrors = text;
    refresh();
}

void ErrorBanner::refresh()
{
    QStringList errors{m_sending.value_or(QString()), m_server ? m_server->message : QString(),
                       m_choiceErrors};
    errors.removeAll(QString());
    errors.removeDuplicates();
    // The session keeps querying a server that it cannot reach, but only the user can supply a password or
    // trust.
    const bool needsUser = m_server && (m_server->kind == host::CupsErrorKind::NotAuthorized ||
                                        m_server->kind == host::CupsErrorKind::Untrusted);
    setMessage(errors.join(u'\n'), needsUser ? tr("Try again") : QString());
}

} // namespace job
} // namespace dialog
