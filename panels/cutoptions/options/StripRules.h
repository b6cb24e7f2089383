// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDELabelStrip.h>
#include <table/CutSettings.h>

#include <cups/ppd.h>

/// What the cut options of a job do to its labels. Pure functions.
namespace striprules {

/// Returns the settings of a job with these choices. For each option the given choice is used; without one,
/// the choice that is marked in the PPD; without a mark, the default of the PPD. The choices of a switch are
/// listed in the order off, on, whatever their names are; a choice that the PPD does not list is on if its
/// name is "ON".
CutSettings cutSettings(ppd_file_t *ppd, const PDEChoices &choices);

/// Returns what the printer does after the label at this position, counted from 0. The count is the number of
/// labels of the job.
PDELabelEnd labelEnd(const CutSettings &settings, std::size_t position, std::size_t count);

/// Returns the effects on a job with this number of labels, without a text about the cuts.
PDEStripEffects effects(const CutSettings &settings, std::size_t count);

} // namespace striprules
