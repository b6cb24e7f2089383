// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace dialog {
inline namespace widgets {

/// The parent for a question that belongs to the window: the window itself, or the dialog that blocks the
/// window. A question to one window stays when another window's dialog is closed. The window may be null.
QWidget *questionParent(QWidget *window);

} // namespace widgets
} // namespace dialog
