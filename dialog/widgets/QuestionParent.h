// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace dialog {
inline namespace widgets {

/// Returns the parent for a question that belongs to the window: the window itself, or the modal dialog that
/// blocks it. A dialog that blocks only another window is not used, because closing it would close the
/// question. The window may be null; the result is then the active modal dialog, or null if there is none.
QWidget *questionParent(QWidget *window);

} // namespace widgets
} // namespace dialog
