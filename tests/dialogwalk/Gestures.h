// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>

namespace dialogwalk {

/// What mouse and keys do with lists. Nothing waits for a time: lists take the second click of a double click
/// here.
class Gestures {
public:
    /// Opens the list with the mouse and clicks the row; a disabled row changes nothing. Returns false then.
    static bool pickRow(QComboBox *list, int row);
    /// Gives the control the focus, as the Tab key does, and presses the key.
    static void pressIn(QWidget *control, Qt::Key key);
    /// The visible widget with that accessible name; null when there is none.
    template<typename Widget>
    static Widget *visibleNamed(const QWidget *window, const QString &accessibleName)
    {
        for (Widget *const each : window->findChildren<Widget *>()) {
            if (each->accessibleName() == accessibleName && each->isVisible())
                return each;
        }
        return nullptr;
    }
    /// Clicks the row of a list that is open already.
    static void clickRow(QAbstractItemView *list, int row);
};

} // namespace dialogwalk
