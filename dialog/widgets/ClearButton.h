// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLineEdit;

namespace dialog {
inline namespace widgets {

/// Adds a clear button to the field when its text is not empty for the first time. Qt looks up the button's
/// icon in the desktop's icon themes, which would noticeably delay every opening of the dialog.
void addClearButton(QLineEdit *field);

} // namespace widgets
} // namespace dialog
