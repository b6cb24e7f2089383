// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// Opens the text as a PPD and performs all operations of the dialog on it: texts in two languages, papers,
/// options with their parameters, marks, conflicts and their resolution. Ends the program when the results
/// contradict each other, or when the text is rejected without an error message.
void examinePpd(const QByteArray &text);
