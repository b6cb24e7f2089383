// SPDX-License-Identifier: Apache-2.0
#include "PDETextField.h"

#include <platform/NotificationCenter.h>

#include <QKeyEvent>
#include <QPointer>

PDETextField13_v400_::PDETextField13_v400_(QWidget *parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, &PDETextField13_v400_::textDidChange);
}

void PDETextField13_v400_::sendFirstResponderNotification(bool isFocusActivity)
{
    if (!isFocusActivity)
        platform::NotificationCenter::defaultCenter().post(resignFirstResponderNotification, this);
}

bool PDETextField13_v400_::becomeFirstResponder()
{
    setFocus(Qt::OtherFocusReason);
    const bool became = window()->focusWidget() == this;
    if (became)
        sendFirstResponderNotification(true);
    return became;
}

bool PDETextField13_v400_::resignFirstResponder()
{
    clearFocus();
    return window()->focusWidget() != this;
}

void PDETextField13_v400_::selectText(QObject *)
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v400_::textDidChange()
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v400_::textDidEndEditing()
{
    if (resignFirstResponder())
        sendFirstResponderNotification(true);
}

void PDETextField13_v400_::keyPressEvent(QKeyEvent *event)
{
    const QPointer<PDETextField13_v400_> alive(this);
    QLineEdit::keyPressEvent(event);
    if (alive && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        textDidEndEditing();
}

void PDETextField13_v400_::focusInEvent(QFocusEvent *event)
{
    // QLineEdit selects all when the Tab key or a shortcut brings the focus, and the next key would wipe the
    // entry out. It leaves the selection alone for other reasons.
    QFocusEvent plain(event->type(),
                      event->reason() == Qt::MouseFocusReason ? Qt::MouseFocusReason : Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&plain);
}

void PDETextField13_v400_::focusOutEvent(QFocusEvent *event)
{
    const QPointer<PDETextField13_v400_> alive(this);
    QLineEdit::focusOutEvent(event);
    // Another window in front, or a menu over the field, is no end: the user comes back to the same entry.
    const Qt::FocusReason reason = event->reason();
    if (alive && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        textDidEndEditing();
}
