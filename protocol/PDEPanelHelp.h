// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>

/// Optional interface of a panel, version 1: its help. The dialog offers the help if
/// PDEPanel::shouldShowHelp() returns true.
class KV_EXPORT PDEPanelHelp_v1 {
public:
    virtual ~PDEPanelHelp_v1() = default;

    /// Returns the help in the user's language, as plain text. A blank line separates paragraphs.
    virtual QString helpText() const = 0;
};
