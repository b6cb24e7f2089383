// SPDX-License-Identifier: Apache-2.0
#include "CutPlan.h"

#include <algorithm>
#include <numeric>

namespace host {
inline namespace strip {

namespace {

PlannedLabel plannedLabel(const StripEffects &effects, int page, const LabelExtent &extent)
{
    PlannedLabel label{page, extent.length, {}, {}, extent.isMeasured || !effects.removeBlank};
    if (effects.removeBlank && !extent.whollyBlank) {
        label.trimmedBefore = extent.leadingBlank;
        label.length -= extent.leadingBlank + extent.trailingBlank;
    }
    return label;
}

std::vector<Piece> piecesOf(const std::vector<PlannedLabel> &labels)
{
    std::vector<Piece> pieces;
    bool begin = true;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (begin)
            pieces.push_back({i, 0, {}, false, true});
        Piece &piece = pieces.back();
        ++piece.labelCount;
        piece.length += labels[i].length;
        piece.held = labels[i].end.held;
        piece.isMeasured = piece.isMeasured && labels[i].isMeasured;
        begin = labels[i].end.fullCut;
    }
    return pieces;
}

} // namespace

CutPlan CutPlan::make(StripEffects effects, std::span<const int> pagesInOrder,
                      std::span<const LabelExtent> extents, std::optional<Millimetres> leadingMargin)
{
    CutPlan plan;
    plan.m_effects = std::move(effects);
    plan.m_leadingMargin = plan.m_effects.leadingMargin ? plan.m_effects.leadingMargin : leadingMargin;
    plan.m_labels.reserve(pagesInOrder.size());
    for (std::size_t i = 0; i < pagesInOrder.size(); ++i) {
        const int page = pagesInOrder[i];
        PlannedLabel label = plannedLabel(plan.m_effects, page, extents[static_cast<std::size_t>(page)]);
        if (plan.m_effects.ends)
            label.end = (*plan.m_effects.ends)[i];
        plan.m_labels.push_back(label);
    }
    plan.m_pieces = piecesOf(plan.m_labels);
    plan.m_isMeasured = std::ranges::all_of(plan.m_pieces, &Piece::isMeasured);
    return plan;
}

Millimetres CutPlan::stripLength() const
{
    return std::accumulate(m_labels.begin(), m_labels.end(), Millimetres(),
                           [](Millimetres sum, const PlannedLabel &label) { return sum + label.length; });
}

Millimetres CutPlan::tapeUsed() const
{
    return m_labels.empty() ? Millimetres() : stripLength() + m_leadingMargin.value_or(Millimetres());
}

} // namespace strip
} // namespace host
