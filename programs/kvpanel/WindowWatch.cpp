// SPDX-License-Identifier: Apache-2.0
#include "WindowWatch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

WindowWatch::WindowWatch()
{
    qApp->installEventFilter(this);
}

bool WindowWatch::eventFilter(QObject *watched, QEvent *event)
{
    auto *const window = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (!window || !window->isWindow())
        return false;
    m_opened.append(window->windowTitle().isEmpty() ? QString::fromLatin1(window->metaObject()->className())
                                                    : window->windowTitle());
    QTimer::singleShot(0, window, &QWidget::close);
    return false;
}
