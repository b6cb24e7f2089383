// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLineEdit;

namespace dialog {
inline namespace widgets {

/// Gives the field a button that clears it, once there is something to clear. The button's icon is searched
/// for in the desktop's icon themes, which would make every opening of the dialog noticeably later.
void addClearButton(QLineEdit *field);

} // namespace widgets
} // namespace dialog
