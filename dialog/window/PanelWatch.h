// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace dialog {
inline namespace window {

/// Detects that the settings of a panel may have changed. A panel changes its controls without notifying the
/// dialog, for example when the user selects a preset, and its controls are operated not only with mouse and
/// keyboard, but also by a screen reader, by a menu that the panel has opened, and by its timers. The class
/// therefore watches the events of the panel's view and of the windows that belong to the view, and the
/// moment before the event loop blocks.
class PanelWatch : public QObject {
    Q_OBJECT

public:
    /// Creates an object that watches no view.
    explicit PanelWatch(QObject *parent);

    /// Watches this view instead of the previous one; null for none. The view may be deleted at any time.
    void follow(QWidget *view);

    /// Watches all events of the program and never filters one out.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Emitted when the panel may have changed: from the event loop, once for all events before.
    void touched();

private:
    bool belongsToView(const QObject *object) const;
    void notifyLater();

    QPointer<QWidget> m_view;
    bool m_isPending = false;
};

} // namespace window
} // namespace dialog
