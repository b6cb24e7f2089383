// SPDX-License-Identifier: Apache-2.0
#include "CutPlan.h"

#include <algorithm>
#include <numeric>

namespace host {
inline namespace strip {

namespace {

/// Returns what the printer does after the label at this position, counted from 0. The count is the number of
/// labels of the job.
LabelEnd labelEnd(const CutSettings &settings, std::size_t position, std::size_t count)
{
    LabelEnd end;
    if (settings.specialTape)
        return end;
    const bool last = position + 1 == count;
    const bool turn = (position + 1) % static_cast<std::size_t>(settings.labelsPerCut) == 0;
    if (last)
        end.fullCut = (settings.automaticCut || settings.cutAtEnd) && !settings.chainPrint;
    else
        end.fullCut = settings.automaticCut && turn;
    end.halfCut = settings.halfCut && !end.fullCut && !last;
    end.cutMark = settings.cutMark && !end.fullCut;
    end.held = settings.chainPrint && last;
    return end;
}

PlannedLabel plannedLabel(const CutSettings &settings, int page, const LabelExtent &extent)
{
    PlannedLabel label{page, extent.length, {}, {}, extent.isMeasured || !settings.removeBlank};
    if (settings.removeBlank && !extent.whollyBlank) {
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

CutPlan CutPlan::make(const CutSettings &settings, std::span<const int> pagesInOrder,
                      std::span<const LabelExtent> extents, std::optional<Millimetres> leadingMargin)
{
    CutPlan plan;
    plan.m_settings = settings;
    plan.m_leadingMargin = leadingMargin;
    plan.m_labels.reserve(pagesInOrder.size());
    for (std::size_t i = 0; i < pagesInOrder.size(); ++i) {
        const int page = pagesInOrder[i];
        PlannedLabel label = plannedLabel(settings, page, extents[static_cast<std::size_t>(page)]);
        label.end = labelEnd(settings, i, pagesInOrder.size());
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
