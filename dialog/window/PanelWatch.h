// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;

namespace dialog {
inline namespace window {

/// Detects that the settings of panels may have changed. A panel changes its controls without notifying the
/// dialog, for example when the user selects a preset, and its controls are operated not only with mouse and
/// keyboard, but also by a screen reader, by a menu that the panel has opened, and by its timers. The class
/// therefore watches the events of the panels' views and of the windows that belong to the views, and the
/// moment before the event loop blocks.
class PanelWatch : public QObject {
    Q_OBJECT

public:
    /// Creates an object that watches no view.
    explicit PanelWatch(QObject *parent);

    /// Watches these views instead of the previous ones. A view may be deleted at any time.
    void follow(const std::vector<QWidget *> &views);

    /// Watches all events of the program and never filters one out.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Emitted when a panel may have changed: from the event loop, once for all events before.
    void touched();

private:
    bool belongsToView(const QObject *object) const;
    bool hasView() const;
    void notifyLater();

    std::vector<QPointer<QWidget>> m_views;
    bool m_isPending = false;
};

} // namespace window
} // namespace dialog
