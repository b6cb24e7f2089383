// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Length.h>
#include <protocol/PDELabelStrip.h>

#include <QStringList>

#include <optional>
#include <vector>

namespace host {
inline namespace strip {

/// What the printer does to the tape after a label.
using LabelEnd = PDELabelEnd;

/// What the settings of a job do to its labels, as the panels of the printer report it for their options. The
/// host itself does not know the meaning of any option.
struct StripEffects {
    /// What follows each label, in print order; absent if it is not known how the printer cuts.
    std::optional<std::vector<LabelEnd>> ends = {};
    /// The labels are printed mirrored.
    bool mirror = false;
    /// Blank tape before and after the printed part of each label is removed.
    bool removeBlank = false;
    /// The tape that is fed before the first label; absent if no option determines it.
    std::optional<Millimetres> leadingMargin = {};
    /// The sentences of panels that replace the one about full cuts. A panel's sentence is left out if the
    /// options of another panel cut elsewhere.
    QStringList cuttingTexts = {};

    bool operator==(const StripEffects &) const = default;
};

/// Combines the reports of several panels about the same labels: each label is followed by everything that
/// any of them reports, and a full cut leaves nothing to cut half or to hold. The cutting is known if at
/// least one panel determines it and none reports that it is not known.
StripEffects combined(const std::vector<PDEStripEffects> &reports, std::size_t labelCount);

} // namespace strip
} // namespace host
