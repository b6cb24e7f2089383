// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

namespace dialog {
inline namespace options {

/// Asks whether to send a job although its settings conflict, and returns true if the user chooses to print
/// anyway. The sentences describe the conflicts. The dialog is modal; the function returns when it is closed.
/// The parent must not be null.
bool confirmConflicts(const QString &sentences, QWidget *parent);

} // namespace options
} // namespace dialog
