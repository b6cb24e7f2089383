// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutGroup.h"

#include <protocol/PDELabelStrip.h>

#include <span>
#include <vector>

namespace rollcutter {

/// Returns what a setting does after each of the labels. Cuts that are counted in labels are counted from the
/// start of the job, over all copies; labels that are left at its end are not cut off.
PDEStripEffects cutEffects(const CutSetting &setting, std::span<const PDELabel> labels);

/// Returns what the options of all groups do after each of the labels: a cut of one group is a cut. The
/// cutting is not known if it is not known of one group, or if its choices are those of none of its settings.
/// Without a group, the cutting is not concerned.
PDEStripEffects cutEffects(const std::vector<CutGroup> &groups, const PrinterOptions &options,
                           std::span<const PDELabel> labels);

} // namespace rollcutter
