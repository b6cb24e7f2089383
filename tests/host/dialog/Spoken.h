// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QWidget>

/// What a screen reader is told of the widget.
inline QAccessibleInterface *spokenOf(QWidget *widget)
{
    QAccessibleInterface *const known = QAccessible::queryAccessibleInterface(widget);
    if (!known || known->isValid())
        return known;
    // Qt may have kept that of a widget of another test, which ended at this address.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    return QAccessible::queryAccessibleInterface(widget);
}
