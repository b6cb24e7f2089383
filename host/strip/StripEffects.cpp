// SPDX-License-Identifier: Apache-2.0
#include "StripEffects.h"

#include <algorithm>

namespace host {
inline namespace strip {

namespace {

void add(LabelEnd &end, const LabelEnd &other)
{
    end.fullCut = end.fullCut || other.fullCut;
    end.halfCut = end.halfCut || other.halfCut;
    end.cutMark = end.cutMark || other.cutMark;
    end.held = end.held || other.held;
    // A full cut leaves nothing to cut half and nothing to hold.
    end.halfCut = end.halfCut && !end.fullCut;
    end.held = end.held && !end.fullCut;
}

bool hasSameFullCuts(const std::vector<PDELabelEnd> &ends, const std::vector<LabelEnd> &others)
{
    return std::ranges::equal(ends, others, {}, &PDELabelEnd::fullCut, &LabelEnd::fullCut);
}

/// Returns whether the report describes how each of the labels ends. A report for another number of labels is
/// an error of the panel; then the cutting is not known.
bool describesEnds(const PDEStripEffects &report, std::size_t labelCount)
{
    return report.cutting == PDECutting::Known && report.ends.size() == labelCount;
}

bool areEndsKnown(const std::vector<PDEStripEffects> &reports, std::size_t labelCount)
{
    bool isDescribed = false;
    for (const PDEStripEffects &report : reports) {
        if (report.cutting == PDECutting::NotConcerned)
            continue;
        if (!describesEnds(report, labelCount))
            return false;
        isDescribed = true;
    }
    return isDescribed;
}

/// Returns whether the panel's sentence about the cuts holds for all panels together.
bool isTextValid(const PDEStripEffects &report, const StripEffects &effects)
{
    if (!effects.ends)
        return report.cutting == PDECutting::NotKnown;
    return report.cutting == PDECutting::Known && hasSameFullCuts(report.ends, *effects.ends);
}

} // namespace

StripEffects combined(const std::vector<PDEStripEffects> &reports, std::size_t labelCount)
{
    StripEffects effects;
    if (areEndsKnown(reports, labelCount))
        effects.ends.emplace(labelCount);
    for (const PDEStripEffects &report : reports) {
        const bool hasEnds = effects.ends && report.cutting == PDECutting::Known;
        for (std::size_t i = 0; hasEnds && i < labelCount; ++i)
            add((*effects.ends)[i], report.ends[i]);
        effects.mirror = effects.mirror || report.mirror;
        effects.removeBlank = effects.removeBlank || report.removeBlank;
        if (report.leadingMargin && !effects.leadingMargin)
            effects.leadingMargin = Millimetres(Points(*report.leadingMargin));
    }
    for (const PDEStripEffects &report : reports) {
        if (report.cuttingText && isTextValid(report, effects))
            effects.cuttingTexts.append(*report.cuttingText);
    }
    return effects;
}

} // namespace strip
} // namespace host
