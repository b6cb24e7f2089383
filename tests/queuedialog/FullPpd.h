// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// A tape printer with all cut options, options of every other kind in groups, free sizes, and choices that
/// exclude each other: "Darkness" with "Turbo", and "Mirror" with "Darkness".
QByteArray fullPpd();
