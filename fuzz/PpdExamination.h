// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// Opens the text as a PPD and does with it all that the dialog does: its texts in two languages, papers,
/// options with their parameters, marks, conflicts and their remedy. Ends the program when the answers
/// contradict each other. A text that is refused is refused with words.
void examinePpd(const QByteArray &text);
