// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantMap>

class PanelTrial;

/// Reports what is wrong with a summary that the panel returns: the display order must list each title once,
/// and each value must be a text.
void checkSummaryEntries(PanelTrial &trial, const QVariantMap &summary);
