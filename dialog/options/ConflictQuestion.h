// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

namespace dialog {
inline namespace options {

/// Asks whether a job is to be sent although its settings exclude each other, which the sentences tell. Waits
/// for the user.
bool sendsInSpiteOf(const QString &sentences, QWidget *parent);

} // namespace options
} // namespace dialog
