// SPDX-License-Identifier: Apache-2.0
#include "EventLog.h"

#include <platform/NotificationCenter.h>
#include <platform/Sound.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <utility>

namespace {

constexpr const char *reportedNotifications[] = {"InvalidCharacterNotification", "FormatErrorNotification",
                                                 "TextFieldResignFirstResponderNotification"};

} // namespace

EventLog::EventLog()
{
    for (const char *name : reportedNotifications) {
        platform::NotificationCenter::defaultCenter().addObserver(
            this, QLatin1String(name), nullptr, [this](const platform::Notification &notification) {
                add({QStringLiteral("notification"), notification.name});
            });
    }
    platform::setBeepListener([this] { add({QStringLiteral("beep")}); });
    qApp->installEventFilter(this);
}

EventLog::~EventLog()
{
    platform::setBeepListener({});
    platform::NotificationCenter::defaultCenter().removeObserver(this);
}

QJsonArray EventLog::take()
{
    return std::exchange(m_events, QJsonArray());
}

bool EventLog::eventFilter(QObject *watched, QEvent *event)
{
    auto *const alert = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
    if (!alert)
        return false;
    QJsonArray titles;
    for (const QAbstractButton *const button : alert->buttons())
        titles.append(button->text());
    add({QStringLiteral("alert"), alert->text(), alert->informativeText(), titles});
    QTimer::singleShot(0, alert, [alert] { alert->buttons().constFirst()->click(); });
    return false;
}
