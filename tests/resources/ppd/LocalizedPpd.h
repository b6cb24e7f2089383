// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/support/PpdBuilder.h>

/// The PPD at the path with its texts as libcups turns them into the language of the locale, say
/// "de_DE.UTF-8", which need not be installed. Null when libcups refuses the PPD.
test_support::PpdPointer openLocalized(const QString &path, const QByteArray &locale);
