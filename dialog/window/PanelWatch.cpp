// SPDX-License-Identifier: Apache-2.0
#include "PanelWatch.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace dialog {
inline namespace window {

namespace {

/// Returns whether the event is input of any kind, or may follow a change without input, as painting does.
bool mayFollowFromChange(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::EnabledChange:
    case QEvent::Paint:
        return true;
    default:
        return false;
    }
}

} // namespace

PanelWatch::PanelWatch(QObject *parent)
    : QObject(parent)
{
}

void PanelWatch::follow(const std::vector<QWidget *> &views)
{
    qApp->removeEventFilter(this);
    if (QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance())
        dispatcher->disconnect(this);
    m_views.assign(views.begin(), views.end());
    if (views.empty())
        return;
    qApp->installEventFilter(this);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (hasView() && !m_isPending)
            Q_EMIT touched();
    });
}

bool PanelWatch::belongsToView(const QObject *object) const
{
    // Menus, lists and alerts are separate windows, but they are children of the view.
    while (object && std::ranges::find(m_views, object) == m_views.end())
        object = object->parent();
    return object != nullptr;
}

bool PanelWatch::hasView() const
{
    return std::ranges::any_of(m_views, [](const QPointer<QWidget> &view) { return !view.isNull(); });
}

bool PanelWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_isPending && hasView() && mayFollowFromChange(event->type()) && belongsToView(watched))
        notifyLater();
    return false;
}

void PanelWatch::notifyLater()
{
    m_isPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isPending = false;
            if (hasView())
                Q_EMIT touched();
        },
        Qt::QueuedConnection);
}

} // namespace window
} // namespace dialog
