// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QObject>
#include <QString>

/// Collects what happens outside the panel while a request runs: changes handed to the dialog, alerts,
/// beeps, notifications. An alert is answered by its first button at once, since no user sees it.
class EventLog : public QObject {
    Q_OBJECT

public:
    /// Starts to observe alerts, beeps and notifications.
    EventLog();
    ~EventLog() override;

    /// Appends an event.
    void add(const QJsonArray &event) { m_events.append(event); }
    /// Everything since the last call, in order.
    QJsonArray take();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QJsonArray m_events;
};
