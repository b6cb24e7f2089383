// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// The command "kvpanel --check BUNDLE PPD": checks a bundle and prints its breaches of the panel protocol.
/// Returns the exit status: 0 without a breach, 1 with breaches, 2 if nothing can be checked, for example
/// with other arguments. hasBundleOption: the option --bundle is given, which --check does not accept.
int runCheck(const QStringList &arguments, bool hasBundleOption);
