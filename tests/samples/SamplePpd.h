// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Sandbox.h"

#include <host/printer/PpdFile.h>

#include <QByteArray>

/// The text of a small tape printer's PPD: papers with and without a printable area, two of equal size,
/// custom lengths, German texts, all nine cut options.
QByteArray tapePpd();
/// As tapePpd(), with count more papers, "Extra0" and so on.
QByteArray tapePpdWithMorePapers(int count);
/// 50 megabytes that begin like a PPD but are not a valid one.
QByteArray damagedPpdText();

/// Opens tapePpd() with its defaults marked. Ends the test program when it cannot be opened.
host::PpdFile openTapePpd(const Sandbox &sandbox);
