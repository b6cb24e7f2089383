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

    QString text;
    int cursor = 0;
    /// -1 when nothing is selected.
    int selectionStart = -1;
    int selectionLength = 0;
};

} // namespace textentry
