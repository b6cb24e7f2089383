// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Sandbox.h"

#include <host/printer/PpdFile.h>

#include <QByteArray>

/// A PPD with options of every kind: switches, lists, several at once, free values of all types, in groups,
/// with German texts, and with options that exclude each other.
QByteArray optionsPpd();

/// A PPD with that many options of that many choices each, in one group and then another.
QByteArray largeOptionsPpd(int options, int choices);

/// Opens the text with its defaults marked. Ends the test program when it cannot be opened.
host::PpdFile openPpd(const Sandbox &sandbox, const QByteArray &text, const QString &language = {});
