// SPDX-License-Identifier: Apache-2.0
// Edits that input methods make.
#include "DigitField.h"

TEST_F(DigitField, RefusesCompositionsAtEveryCursorAndSelection)
{
    for (const Selection &selection : allSelections()) {
        begin(selection.start, selection.length);
        expectError([&] { in.commit(QStringLiteral("日本語")); });
    }
}

TEST_F(DigitField, RefusedCompositionBringsTheSelectionBackThatItReplaced)
{
    for (const Selection &selection : allSelections()) {
        begin(selection.start, selection.length);
        const FieldState before = in.state();
        Refusals choiceErrors;
        in.compose(QStringLiteral("に"));
        in.compose(QStringLiteral("にほん"));
        EXPECT_EQ(choiceErrors.beeps(), 0u) << "what is unfinished is not checked";
        in.commit(QStringLiteral("日本"));
        EXPECT_TRUE(before == in.state()) << describe(before) << " became " << describe(in.state());
        EXPECT_EQ(choiceErrors.beeps(), 1u);
        in.commit(QStringLiteral("日本"));
        EXPECT_TRUE(before == in.state()) << describe(before) << " became " << describe(in.state());
    }
}

TEST_F(DigitField, RefusedPartOfACompositionEndsIt)
{
    begin(1, 2);
    const FieldState before = in.state();
    in.compose(QStringLiteral("にほんご"));
    in.commit(QStringLiteral("日本"), QStringLiteral("ご"));
    EXPECT_TRUE(before == in.state()) << describe(in.state());
    EXPECT_EQ(in.field.inputMethodQuery(Qt::ImSurroundingText).toString(), before.text);
    EXPECT_EQ(in.field.displayText(), before.text);
    in.type(QStringLiteral("9"));
    EXPECT_EQ(in.field.text(), QStringLiteral("194"));
}

TEST_F(DigitField, RefusedCompositionLeavesTheUndoHistoryAlone)
{
    in.type(QStringLiteral("12"));
    in.press(QKeySequence::SelectAll);
    in.compose(QStringLiteral("に"));
    in.commit(QStringLiteral("日"));
    EXPECT_EQ(in.field.selectedText(), QStringLiteral("12"));
    in.press(QKeySequence::Undo);
    EXPECT_EQ(in.field.text(), QString());
    in.press(QKeySequence::Redo);
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
}

TEST_F(DigitField, ObserversHearOfTheSelectionThatCameBack)
{
    begin(1, 2);
    QSignalSpy changed(&in.field, &QLineEdit::textChanged);
    in.compose(QStringLiteral("に"));
    in.commit(QStringLiteral("日"));
    ASSERT_EQ(changed.count(), 2);
    EXPECT_EQ(changed[0][0], QStringLiteral("14"));
    EXPECT_EQ(changed[1][0], QStringLiteral("1234"));
}

TEST_F(DigitField, AcceptedCompositionIsHeldAgainstWhatItReplaced)
{
    formatter->setTextStyle(0);
    formatter->setMaxLength(0);
    formatter->addInvalidCharacter(QStringLiteral("日本"));
    begin(1, 2);
    in.compose(QStringLiteral("にほん"));
    in.commit(QStringLiteral("日本語"));
    EXPECT_EQ(in.field.text(), QStringLiteral("1日本語4"));
    in.commit(QStringLiteral("日"), QStringLiteral("ほん"));
    in.commit(QStringLiteral("本"));
    EXPECT_EQ(in.field.text(), QStringLiteral("1日本語日本4")) << "committed in two parts, checked in two";
    expectError([&] { in.commit(QStringLiteral("日本")); });
}

TEST_F(DigitField, CancelledCompositionIsADeletion)
{
    begin(1, 2);
    Refusals choiceErrors;
    in.compose(QStringLiteral("に"));
    in.compose(QString());
    EXPECT_EQ(in.field.text(), QStringLiteral("14"));
    EXPECT_EQ(choiceErrors.beeps(), 0u);
    expectError([&] { in.commit(QStringLiteral("日")); });
}

TEST_F(DigitField, ReplacementByAnInputMethodIsChecked)
{
    begin(4, 0);
    expectError([&] { in.commit(QStringLiteral("日"), QString(), -2, 2); });
    in.commit(QStringLiteral("9"), QString(), -2, 2);
    EXPECT_EQ(in.field.text(), QStringLiteral("129"));
}
