// SPDX-License-Identifier: Apache-2.0
#include "FieldState.h"

#include <QLineEdit>

namespace textentry {

FieldState FieldState::of(const QLineEdit &field)
{
    // After a redo QLineEdit may speak of a selection that begins before the text: there is none.
    const int start = field.selectionStart();
    return {field.text(), field.cursorPosition(), start,
            start < 0 ? 0 : static_cast<int>(field.selectedText().size())};
}

void FieldState::restoreSelection(QLineEdit *field) const
{
    if (*this == of(*field))
        return;
    if (selectionLength == 0) {
        field->deselect();
        field->setCursorPosition(cursor);
        return;
    }
    // The cursor stands at the end where the user let go; a negative length puts it at the start.
    if (cursor == selectionStart)
        field->setSelection(selectionStart + selectionLength, -selectionLength);
    else
        field->setSelection(selectionStart, selectionLength);
}

PDETextRange FieldState::selection() const
{
    return selectionLength > 0 ? PDETextRange{selectionStart, selectionLength} : PDETextRange{cursor, 0};
}

} // namespace textentry
