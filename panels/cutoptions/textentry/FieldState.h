// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PDEFormatter.h"

#include <QString>

class QLineEdit;

namespace textentry {

/// What a text field shows: its text, where the cursor is, what is selected. Kept over an edit, to put the
/// field back as it was when the edit is refused.
struct FieldState {
    static FieldState of(const QLineEdit &field);

    /// Puts cursor and selection of a field that has the same text back.
    void restoreSelection(QLineEdit *field) const;

    /// The selection; without one, the place of the cursor.
    PDETextRange selection() const;

    bool operator==(const FieldState &) const = default;

    /// The text, the position of the cursor, and the start and length of the selection, in UTF-16 units.
    QString text;
    int cursor = 0;
    int selectionStart = -1; ///< -1 if nothing is selected
    int selectionLength = 0;
};

} // namespace textentry
