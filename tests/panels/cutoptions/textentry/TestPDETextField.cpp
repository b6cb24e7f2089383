// SPDX-License-Identifier: Apache-2.0
#include "FieldWindow.h"
#include "Refusals.h"

#include <textentry/FormatterAttachment.h>
#include <textentry/PDETextField.h>

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class ReportingField : public testing::Test {
protected:
    ReportingField()
    {
        platform::NotificationCenter::defaultCenter().addObserver(
            this, PDETextField13_v400_::resignFirstResponderNotification, nullptr,
            [this](const platform::Notification &notification) { posted.push_back(notification); });
    }
    ~ReportingField() override { platform::NotificationCenter::defaultCenter().removeObserver(this); }

    FieldWindow<PDETextField13_v400_> in;
    std::vector<platform::Notification> posted;
};

} // namespace

TEST_F(ReportingField, EachEditPostsOnceWithTheFieldAsObject)
{
    EXPECT_TRUE(posted.empty()) << "having got the focus";
    in.type(QStringLiteral("a"));
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].name, QStringLiteral("TextFieldResignFirstResponderNotification"));
    EXPECT_EQ(posted[0].object, &in.field);
    EXPECT_EQ(posted[0].text, QString());
    in.paste(QStringLiteral("bcd"));
    EXPECT_EQ(posted.size(), 2u);
    in.compose(QStringLiteral("に"));
    EXPECT_EQ(posted.size(), 2u) << "an unfinished composition is not in the text";
    in.commit(QStringLiteral("日本"));
    EXPECT_EQ(posted.size(), 3u);
    in.press(Qt::Key_Backspace);
    EXPECT_EQ(posted.size(), 4u);
    in.press(QKeySequence::Undo);
    EXPECT_EQ(posted.size(), 5u);
    in.press(Qt::Key_Home);
    in.press(QKeySequence::SelectAll);
    EXPECT_EQ(posted.size(), 5u) << "moving and selecting change no text";
}

TEST_F(ReportingField, ChangesByTheProgramAreSilent)
{
    in.field.setText(QStringLiteral("set"));
    in.field.clear();
    EXPECT_TRUE(posted.empty());
}

TEST_F(ReportingField, FocusComesAndGoesSilently)
{
    in.other.setFocus();
    QTest::mouseClick(&in.field, Qt::LeftButton);
    EXPECT_TRUE(in.field.hasFocus());
    in.press(Qt::Key_Tab);
    EXPECT_FALSE(in.field.hasFocus());
    EXPECT_TRUE(in.other.hasFocus()) << "ending the entry must not take the focus from its next owner";
    EXPECT_TRUE(in.field.becomeFirstResponder());
    EXPECT_TRUE(in.field.hasFocus());
    EXPECT_TRUE(in.field.resignFirstResponder());
    EXPECT_FALSE(in.field.hasFocus());
    EXPECT_TRUE(posted.empty());
}

TEST_F(ReportingField, KeysThatBringTheFocusLeaveTheSelectionAlone)
{
    in.field.setText(QStringLiteral("1234"));
    for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason,
                                         Qt::MouseFocusReason, Qt::OtherFocusReason}) {
        in.other.setFocus();
        in.field.setCursorPosition(2);
        in.field.setFocus(reason);
        ASSERT_TRUE(in.field.hasFocus()) << reason;
        EXPECT_FALSE(in.field.hasSelectedText()) << reason;
        EXPECT_EQ(in.field.cursorPosition(), 2) << reason;
        in.other.setFocus();
        in.field.setSelection(1, 2);
        in.field.setFocus(reason);
        EXPECT_EQ(in.field.selectedText(), QStringLiteral("23")) << reason;
    }
    in.other.setFocus();
    in.field.setCursorPosition(4);
    in.press(Qt::Key_Backtab);
    ASSERT_TRUE(in.field.hasFocus());
    in.type(QStringLiteral("5"));
    EXPECT_EQ(in.field.text(), QStringLiteral("12345")) << "the next key adds to the entry";
}

TEST_F(ReportingField, FieldThatCannotTakeTheFocusSaysSo)
{
    in.other.setFocus();
    in.field.setEnabled(false);
    EXPECT_FALSE(in.field.becomeFirstResponder());
    EXPECT_TRUE(in.other.hasFocus());
}

TEST_F(ReportingField, ReturnEndsTheEntryAndGivesUpTheFocus)
{
    in.type(QStringLiteral("1"));
    posted.clear();
    QSignalSpy finished(&in.field, &QLineEdit::editingFinished);
    in.press(Qt::Key_Return);
    EXPECT_GE(finished.count(), 1);
    EXPECT_FALSE(in.field.hasFocus());
    EXPECT_EQ(in.field.text(), QStringLiteral("1"));
    EXPECT_TRUE(posted.empty());
}

TEST_F(ReportingField, AnotherWindowInFrontDoesNotEndTheEntry)
{
    QFocusEvent event(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&in.field, &event);
    EXPECT_EQ(in.window.focusWidget(), &in.field);
    EXPECT_TRUE(posted.empty());
}

TEST_F(ReportingField, SelectTextPostsOnceAndSelectsNothing)
{
    in.field.setText(QStringLiteral("1234"));
    in.field.setSelection(1, 2);
    const auto before = in.state();
    in.field.selectText(nullptr);
    EXPECT_TRUE(before == in.state());
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].object, &in.field);
    in.field.deselect();
    in.field.selectText(&in.other);
    EXPECT_FALSE(in.field.hasSelectedText());
    EXPECT_EQ(posted.size(), 2u);
}

TEST_F(ReportingField, FlagTellsFocusActivityWhichIsSilent)
{
    in.field.sendFirstResponderNotification(true);
    EXPECT_TRUE(posted.empty());
    in.field.sendFirstResponderNotification(false);
    EXPECT_EQ(posted.size(), 1u);
}

TEST_F(ReportingField, RefusedEditsAreNoEdits)
{
    textentry::FormatterAttachment::attach(&in.field, PDEFormatter::initWithStyle(2));
    Refusals choiceErrors;
    in.type(QStringLiteral("1x2"));
    in.paste(QStringLiteral("y"));
    EXPECT_EQ(in.field.text(), QStringLiteral("12"));
    EXPECT_EQ(choiceErrors.beeps(), 2u);
    EXPECT_EQ(posted.size(), 2u);
}
