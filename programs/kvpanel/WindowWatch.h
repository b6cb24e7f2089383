// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>

/// Observes which windows open while it exists, and closes them: a modal window would otherwise wait for a
/// user. A window that closes before the call returns is observed as well.
class WindowWatch : public QObject {
    Q_OBJECT

public:
    /// Observes all windows of the application.
    WindowWatch();

    /// The opened windows: the title of each, or the name of its class if it has none.
    const QStringList &opened() const { return m_opened; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList m_opened;
};
