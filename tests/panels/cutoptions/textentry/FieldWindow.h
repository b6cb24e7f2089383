// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <textentry/FieldState.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

/// A window with a text field that has the focus, and the ways in which a user edits it.
template<typename Field = QLineEdit>
class FieldWindow {
public:
    FieldWindow()
    {
        window.resize(300, 60);
        field.setGeometry(10, 10, 280, 30);
        other.setGeometry(10, 40, 10, 10);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }

    /// One key press a character, whatever keyboard has it.
    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&field, key, modifiers);
    }
    void press(QKeySequence::StandardKey keys) { QTest::keySequence(&field, QKeySequence(keys)); }

    void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        press(QKeySequence::Paste);
    }

    /// An input method shows an unfinished text.
    void compose(const QString &unfinished)
    {
        QInputMethodEvent event(unfinished, {});
        QApplication::sendEvent(&field, &event);
    }

    /// An input method commits a text, replacing length characters from start on, counted from the cursor.
    void commit(const QString &text, const QString &unfinished = {}, int start = 0, int length = 0)
    {
        QInputMethodEvent event(unfinished, {});
        event.setCommitString(text, start, length);
        QApplication::sendEvent(&field, &event);
    }

    /// Drags the text from another window over the field and drops it where the character at the position
    /// begins; answers what the source is told was done with it.
    Qt::DropAction drop(const QString &text, int position, Qt::DropAction action = Qt::MoveAction)
    {
        const QPoint place = placeOf(position);
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &enter);
        QDragMoveEvent move(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &move);
        QDropEvent dropped(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &dropped);
        return dropped.isAccepted() ? dropped.dropAction() : Qt::IgnoreAction;
    }

    QPoint placeOf(int position)
    {
        const auto before = textentry::FieldState::of(field);
        const QSignalBlocker silent(&field);
        field.setCursorPosition(position);
        const QPoint place = field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        before.restoreSelection(&field);
        return place;
    }

    textentry::FieldState state() const { return textentry::FieldState::of(field); }

    QWidget window;
    Field field{&window};
    QLineEdit other{&window};
};
