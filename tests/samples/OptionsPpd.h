// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Sandbox.h"

#include <host/printer/PpdFile.h>

#include <QByteArray>

/// A PPD with options of every kind: switches, lists, multiple choices, custom values of all types, in
/// groups, with German texts, and with constraints between options.
QByteArray optionsPpd();

/// A PPD with the given number of options with the given number of choices each, in two groups.
QByteArray largeOptionsPpd(int options, int choices);

/// Opens the PPD text with its defaults marked. Ends the test program when the text cannot be opened.
host::PpdFile openPpd(const Sandbox &sandbox, const QByteArray &text, const QString &language = {});
