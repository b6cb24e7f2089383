// SPDX-License-Identifier: Apache-2.0
#include "GoOn.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>

namespace dialogwalk {

GoOn::GoOn()
{
    qApp->installEventFilter(this);
}

GoOn::~GoOn()
{
    qApp->removeEventFilter(this);
}

bool GoOn::eventFilter(QObject *watched, QEvent *event)
{
    auto *const question = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
    if (!question)
        return false;
    QMetaObject::invokeMethod(
        question,
        [question] {
            for (QAbstractButton *const button : question->buttons()) {
                if (question->buttonRole(button) == QMessageBox::AcceptRole)
                    return button->click();
            }
        },
        Qt::QueuedConnection);
    return false;
}

} // namespace dialogwalk
