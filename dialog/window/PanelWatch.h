// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace dialog {
inline namespace window {

/// Notices that a panel may have changed. A panel changes its controls without informing the dialog, when the
/// user picks a ready-made combination for instance, and its controls are operated by more than mouse and
/// keys: by a screen reader, by a menu that it has opened, by its own timers. So everything that reaches its
/// view, or a window that belongs to the view, counts, and so does the moment before the program waits for
/// something new to happen.
class PanelWatch : public QObject {
    Q_OBJECT

public:
    explicit PanelWatch(QObject *parent);

    /// Watches this view from now on; null for none. The view may be deleted at any time.
    void follow(QWidget *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The panel may have changed. Emitted from the event loop, once for all that happened before.
    void touched();

private:
    bool belongsToView(const QObject *object) const;
    void announceLater();

    QPointer<QWidget> m_view;
    bool m_isAnnounced = false;
};

} // namespace window
} // namespace dialog
