// SPDX-License-Identifier: Apache-2.0
#include "FormatterTrial.h"

#include "FormatterRequest.h"

#include <platform/NotificationCenter.h>
#include <platform/Sound.h>

#include <QJsonArray>

namespace textentry {

namespace {

using platform::Notification;
using platform::NotificationCenter;

/// Hears the formatter's notifications for as long as it lives.
class RefusalListener {
public:
    RefusalListener()
    {
        for (const QString &name :
             {PDEFormatter::invalidCharacterNotification, PDEFormatter::formatErrorNotification})
            NotificationCenter::defaultCenter().addObserver(
                this, name, nullptr, [this](const Notification &notification) { m_last = notification; });
    }
    ~RefusalListener() { NotificationCenter::defaultCenter().removeObserver(this); }
    RefusalListener(const RefusalListener &) = delete;
    RefusalListener &operator=(const RefusalListener &) = delete;

    /// What was posted since the last call; nothing when nothing was.
    std::optional<Notification> take() { return std::exchange(m_last, std::nullopt); }

private:
    std::optional<Notification> m_last;
};

QJsonValue objectOf(const Notification &notification, const PDEFormatter &formatter)
{
    return notification.object == &formatter ? QStringLiteral("formatter") : notification.text;
}

/// Runs one trial and answers its result.
class TrialRunner {
public:
    explicit TrialRunner(const PDEFormatter &formatter)
        : m_formatter(formatter)
    {
    }

    QJsonObject operator()(const FormatterRequest::Edit &edit)
    {
        const std::uint64_t beepsBefore = platform::beepCount();
        const bool accepted = m_formatter.isPartialStringValid(edit.partial, edit.proposed, edit.original,
                                                               edit.originalSelection, nullptr);
        const std::optional<Notification> posted = m_listener.take();
        return {{"accepted", accepted},
                {"notification", posted ? QJsonValue(posted->name) : QJsonValue()},
                {"object", posted ? objectOf(*posted, m_formatter) : QJsonValue()},
                {"beeps", static_cast<qint64>(platform::beepCount() - beepsBefore)}};
    }

    QJsonObject operator()(const FormatterRequest::Format &format)
    {
        return {{"text", m_formatter.stringForObjectValue(format.object)}};
    }

    QJsonObject operator()(const FormatterRequest::ObjectValue &value)
    {
        std::optional<QString> object;
        m_formatter.getObjectValue(&object, value.string, nullptr);
        return {{"text", object ? QJsonValue(*object) : QJsonValue()}};
    }

private:
    const PDEFormatter &m_formatter;
    RefusalListener m_listener;
};

} // namespace

QJsonObject tryFormatter(const QJsonObject &request)
{
    const auto read = FormatterRequest::read(request);
    if (const auto *const fault = std::get_if<QString>(&read))
        return {{"error", *fault}};
    const auto &checked = std::get<FormatterRequest>(read);
    TrialRunner runner(*checked.formatter);
    QJsonArray results;
    for (const FormatterRequest::Trial &trial : checked.trials)
        results.append(std::visit(runner, trial));
    return {{"results", results}};
}

} // namespace textentry
