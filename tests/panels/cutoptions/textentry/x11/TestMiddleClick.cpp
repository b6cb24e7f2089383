// SPDX-License-Identifier: Apache-2.0
// Pasting by the middle mouse button exists on X11 only, where the selected text of any window is at hand.

#include "../Refusals.h"
#include <textentry/FieldState.h>
#include <textentry/FormatterAttachment.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

TEST(MiddleClick, PastesWhatIsTakenAndLeavesNoTraceOfWhatIsRefused)
{
    QLineEdit field;
    field.resize(300, 30);
    textentry::FormatterAttachment::attach(&field, PDEFormatter::initWithStyle(2));
    field.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&field));
    ASSERT_TRUE(QApplication::clipboard()->supportsSelection());

    const QPoint behindTheText(250, 15);
    field.setText(QStringLiteral("1234"));
    field.setSelection(1, 2);
    // Selecting has put "23" into the clipboard that a middle click pastes from.
    QApplication::clipboard()->setText(QStringLiteral("x"), QClipboard::Selection);
    const auto before = textentry::FieldState::of(field);
    Refusals choiceErrors;
    QTest::mouseClick(&field, Qt::MiddleButton, Qt::NoModifier, behindTheText);
    EXPECT_EQ(choiceErrors.beeps(), 1u);
    EXPECT_TRUE(before == textentry::FieldState::of(field)) << qPrintable(field.text());

    QApplication::clipboard()->setText(QStringLiteral("56"), QClipboard::Selection);
    QTest::mouseClick(&field, Qt::MiddleButton, Qt::NoModifier, behindTheText);
    EXPECT_EQ(field.text(), QStringLiteral("123456"));
    EXPECT_EQ(choiceErrors.beeps(), 1u);
}
