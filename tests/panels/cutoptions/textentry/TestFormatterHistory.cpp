// SPDX-License-Identifier: Apache-2.0
// Undo, redo, and what the program and its listeners do to a field meanwhile.
#include "DigitField.h"

#include <QMenu>

TEST_F(DigitField, RefusalLeavesTheUndoHistoryAlone)
{
    in.type(QStringLiteral("12"));
    expectError([&] { in.type(QStringLiteral("x")); });
    in.press(Qt::Key_Backspace);
    expectError([&] { in.paste(QStringLiteral("x")); });
    in.press(QKeySequence::Undo);
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
    in.press(QKeySequence::Undo);
    EXPECT_EQ(in.field.text(), QString());
    in.press(QKeySequence::Redo);
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
}

TEST_F(DigitField, UndoThatBringsBackARefusedTextIsRefused)
{
    begin(0, 0, QStringLiteral("ab12"));
    in.press(Qt::Key_Delete);
    in.press(Qt::Key_Delete);
    ASSERT_EQ(in.field.text(), QStringLiteral("12"));
    in.field.setSelection(2, -1);
    expectError([&] { in.press(QKeySequence::Undo); });
    expectError([&] { in.press(QKeySequence::Undo); });
    formatter->setTextStyle(0);
    in.press(QKeySequence::Undo);
    EXPECT_EQ(in.field.text(), QStringLiteral("ab12"));
}

TEST_F(DigitField, RedoThatBringsBackARefusedTextIsRefused)
{
    formatter->setTextStyle(0);
    in.type(QStringLiteral("ab"));
    in.press(QKeySequence::Undo);
    ASSERT_EQ(in.field.text(), QString());
    formatter->setTextStyle(2);
    expectError([&] { in.press(QKeySequence::Redo); });
    EXPECT_TRUE(in.field.isRedoAvailable());
    formatter->setTextStyle(0);
    in.press(QKeySequence::Redo);
    EXPECT_EQ(in.field.text(), QStringLiteral("ab"));
}

TEST_F(DigitField, AcceptedUndoIsToldLikeAnyEdit)
{
    in.type(QStringLiteral("12"));
    QSignalSpy edited(&in.field, &QLineEdit::textEdited);
    QSignalSpy changed(&in.field, &QLineEdit::textChanged);
    QSignalSpy moved(&in.field, &QLineEdit::cursorPositionChanged);
    in.press(QKeySequence::Undo);
    EXPECT_EQ(edited.count(), 1);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0], QString());
    EXPECT_EQ(moved.count(), 1);
    in.press(QKeySequence::Undo);
    EXPECT_EQ(edited.count(), 1) << "nothing left to undo";
}

TEST_F(DigitField, UndoFromTheContextMenuIsChecked)
{
    begin(0, 0, QStringLiteral("ab12"));
    in.press(Qt::Key_Delete);
    in.press(Qt::Key_Delete);
    const auto choose = [this](const QString &title) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), in.field.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&in.field, &event);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        int found = 0;
        for (QAction *const action : menu->actions()) {
            if (!action->text().startsWith(title))
                continue;
            EXPECT_TRUE(action->isEnabled());
            action->trigger();
            ++found;
        }
        menu->close();
        EXPECT_EQ(found, 1);
    };
    expectError([&] { choose(QStringLiteral("&Undo")); });
    formatter->setTextStyle(0);
    choose(QStringLiteral("&Undo"));
    EXPECT_EQ(in.field.text(), QStringLiteral("ab12"));
    choose(QStringLiteral("&Redo"));
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
    formatter->setTextStyle(2);
    QApplication::clipboard()->setText(QStringLiteral("x"));
    expectError([&] { choose(QStringLiteral("&Paste")); });
}

TEST_F(DigitField, OwnContextMenuOfTheFieldIsLeftToItsOwner)
{
    in.field.setContextMenuPolicy(Qt::CustomContextMenu);
    QSignalSpy asked(&in.field, &QWidget::customContextMenuRequested);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), in.field.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&in.field, &event);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(DigitField, ProgramMaySetAnything)
{
    Refusals choiceErrors;
    in.field.setText(QStringLiteral("日本語 is too long"));
    EXPECT_EQ(in.field.text(), QStringLiteral("日本語 is too long"));
    in.type(QStringLiteral("1"));
    EXPECT_EQ(choiceErrors.beeps(), 1u);
    in.press(Qt::Key_Backspace);
    EXPECT_EQ(in.field.text(), QStringLiteral("日本語 is too lon"));
    in.field.clear();
    in.type(QStringLiteral("1"));
    EXPECT_EQ(in.field.text(), QStringLiteral("1"));
    EXPECT_EQ(choiceErrors.beeps(), 1u);
}

TEST_F(DigitField, ChangesWithSignalsBlockedAreNotMissed)
{
    begin(0, 4);
    {
        const QSignalBlocker silent(&in.field);
        in.field.setText(QStringLiteral("98"));
        in.field.setCursorPosition(1);
    }
    expectError([&] { in.type(QStringLiteral("x")); });
    in.type(QStringLiteral("5"));
    EXPECT_EQ(in.field.text(), QStringLiteral("958"));
}

TEST_F(DigitField, RedoByTheProgramIsNotChecked)
{
    formatter->setTextStyle(0);
    in.type(QStringLiteral("ab"));
    in.field.undo();
    formatter->setTextStyle(2);
    Refusals choiceErrors;
    in.field.redo();
    EXPECT_EQ(in.field.text(), QStringLiteral("ab"));
    EXPECT_EQ(choiceErrors.beeps(), 0u);
    expectError([&] { in.type(QStringLiteral("x")); });
}

TEST_F(DigitField, RedoBehindTheFormattersBackCannotSwitchTheCheckOff)
{
    formatter->setTextStyle(0);
    in.type(QStringLiteral("ab"));
    in.field.undo();
    formatter->setTextStyle(2);
    {
        const QSignalBlocker silent(&in.field);
        in.field.redo();
    }
    in.type(QStringLiteral("x"));
    EXPECT_FALSE(in.field.text().contains(u'x'));
    expectError([&] { in.type(QStringLiteral("x")); });
}

TEST_F(DigitField, UndoByTheProgramIsNotChecked)
{
    begin(0, 0, QStringLiteral("ab12"));
    in.press(Qt::Key_Delete);
    Refusals choiceErrors;
    in.field.undo();
    EXPECT_EQ(in.field.text(), QStringLiteral("ab12"));
    EXPECT_EQ(choiceErrors.beeps(), 0u);
    expectError([&] { in.type(QStringLiteral("x")); });
}

TEST_F(DigitField, ListenerFindsTheFieldAtRestAndMayChangeIt)
{
    begin(4, 0);
    QString seen;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, PDEFormatter::invalidCharacterNotification, nullptr,
                       [&](const platform::Notification &) {
                           seen = in.field.text();
                           in.field.setText(QStringLiteral("1"));
                       });
    in.type(QStringLiteral("x"));
    center.removeObserver(this);
    EXPECT_EQ(seen, QStringLiteral("1234"));
    EXPECT_EQ(in.field.text(), QStringLiteral("1"));
    in.type(QStringLiteral("2"));
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
}

TEST_F(DigitField, ListenerMayChangeTheFieldDuringAPasteByTheProgram)
{
    begin(4, 0);
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, PDEFormatter::invalidCharacterNotification, nullptr,
                       [&](const platform::Notification &) { in.field.setText(QStringLiteral("1")); });
    in.field.insert(QStringLiteral("x"));
    center.removeObserver(this);
    EXPECT_EQ(in.field.text(), QStringLiteral("1"));
    expectError([&] { in.type(QStringLiteral("x")); });
}
