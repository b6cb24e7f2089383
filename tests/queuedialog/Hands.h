// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/support/Waiting.h>

#include <QAbstractButton>
#include <QComboBox>

using test_support::waitUntil;

/// Mouse and key input as from a user. All events are sent to the window at the visible position of the
/// control: controls that are covered, disabled or outside receive nothing.
class Hands {
public:
    /// Clicks in the middle of the control; on a check box on its sign.
    static void click(QWidget *target);
    /// Types into whatever has the focus.
    static void type(QWidget *window, const QString &text);
    static void press(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Replaces what stands in the field.
    static void typeInto(QWidget *field, const QString &text);
    /// Opens the list with the mouse and picks the entry with that text.
    static void pick(QComboBox *list, const QString &text);
};
