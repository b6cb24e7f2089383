// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FieldWindow.h"
#include "Refusals.h"

#include <textentry/FormatterAttachment.h>

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <vector>

using textentry::FieldState;
using textentry::FormatterAttachment;

inline std::string describe(const FieldState &state)
{
    return QStringLiteral("\"%1\" cursor %2 selection %3+%4")
        .arg(state.text)
        .arg(state.cursor)
        .arg(state.selectionStart)
        .arg(state.selectionLength)
        .toStdString();
}

/// A field that takes digits, up to five of them.
class DigitField : public testing::Test {
protected:
    DigitField()
    {
        auto made = PDEFormatter::initWithStyle(2);
        made->setMaxLength(5);
        formatter = &FormatterAttachment::attach(&in.field, std::move(made))->formatter();
    }

    /// The field as it is set by the program: "1234" with the characters from start on selected.
    void begin(int start, int length, const QString &text = QStringLiteral("1234"))
    {
        in.field.setText(text);
        if (length != 0)
            in.field.setSelection(start, length);
        else
            in.field.setCursorPosition(start);
    }

    /// Makes an edit that must be refused, and checks that it has left no trace.
    template<typename Edit>
    void expectError(Edit edit)
    {
        const FieldState before = in.state();
        const bool undoBefore = in.field.isUndoAvailable();
        QSignalSpy changed(&in.field, &QLineEdit::textChanged);
        QSignalSpy edited(&in.field, &QLineEdit::textEdited);
        Refusals choiceErrors;
        edit();
        EXPECT_TRUE(before == in.state()) << describe(before) << " became " << describe(in.state());
        EXPECT_EQ(in.field.isUndoAvailable(), undoBefore);
        EXPECT_EQ(choiceErrors.beeps(), 1u);
        EXPECT_EQ(choiceErrors.notifications.size(), 1u);
        EXPECT_EQ(changed.count(), 0);
        EXPECT_EQ(edited.count(), 0);
    }

    FieldWindow<> in;
    PDEFormatter *formatter = nullptr;
};

struct Selection {
    int start;
    int length;
};

/// Every cursor place and every selection in "1234", made forwards and backwards.
inline std::vector<Selection> allSelections()
{
    std::vector<Selection> selections;
    for (int start = 0; start <= 4; ++start)
        for (int end = 0; end <= 4; ++end)
            selections.push_back({start, end - start});
    return selections;
}
