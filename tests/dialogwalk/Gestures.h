// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>

namespace dialogwalk {

/// What mouse and keys do with lists. Nothing waits for a time: lists take the second click of a double click here.
class Gestures {
public:
    /// Opens the list with the mouse and clicks the row; a row that is greyed leaves everything as it is. False then.
    static bool pickRow(QComboBox *list, int row);
    /// Gives the control the focus, as the Tab key does, and presses the key.
    static void pressIn(QWidget *control, Qt::Key key);
    /// Clicks the row of a list that is open already.
    static void clickRow(QAbstractItemView *list, int row);
};

/// Presses the button that goes on, in every question and alert that comes up while the object lives.
class GoOn : public QObject {
public:
    GoOn();
    ~GoOn() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace dialogwalk
