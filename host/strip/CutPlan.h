// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripEffects.h"

#include <host/labels/LabelExtent.h>

#include <optional>
#include <span>
#include <vector>

namespace host {
inline namespace strip {

/// A label on the strip.
struct PlannedLabel {
    /// The document's page, counted from 0.
    int page = 0;
    /// The length along the tape after blank tape has been removed.
    Millimetres length = {};
    /// The length of the blank tape that was removed before the first mark of the label.
    Millimetres trimmedBefore = {};
    /// What follows the label.
    LabelEnd end;
    /// Whether the length is final: either no blank tape is removed, or it has been measured.
    bool isMeasured = true;

    bool operator==(const PlannedLabel &) const = default;
};

/// A piece of the strip: the labels between two full cuts, between a full cut and an end of the strip or,
/// without full cuts, all labels.
struct Piece {
    /// The index of the first label in CutPlan::labels().
    std::size_t firstLabel = 0;
    /// The number of labels in the piece, at least 1.
    std::size_t labelCount = 0;
    /// The length along the tape.
    Millimetres length = {};
    /// Whether the end of the piece stays in the printer.
    bool held = false;
    /// Whether the lengths of all its labels are final.
    bool isMeasured = true;

    bool operator==(const Piece &) const = default;
};

/// How a job comes out of the printer: its labels in print order, and what the printer does after each. The
/// preview, the printed strip, the sentences and the figures are all made from this plan.
class CutPlan {
public:
    /// Makes the plan for the pages in print order. The extents are those of the document's pages; every page
    /// in print order is an index into them. The ends of the effects, if they are known, are as many as the
    /// pages. The leading margin is the tape that the printer feeds before the first label if the effects do
    /// not determine it; it is absent if the printer does not report it.
    static CutPlan make(StripEffects effects, std::span<const int> pagesInOrder,
                        std::span<const LabelExtent> extents, std::optional<Millimetres> leadingMargin);

    /// What the settings do to the labels.
    const StripEffects &effects() const { return m_effects; }
    /// Whether it is known how the printer cuts. If it is not, the plan has no cuts.
    bool areCutsKnown() const { return m_effects.ends.has_value(); }
    /// The labels in print order, and the pieces in the order in which they leave the printer.
    const std::vector<PlannedLabel> &labels() const { return m_labels; }
    const std::vector<Piece> &pieces() const { return m_pieces; }
    /// The tape that is fed before the first label; absent if the printer does not report it.
    const std::optional<Millimetres> &leadingMargin() const { return m_leadingMargin; }
    /// Whether all lengths are final. Until then they are suitable for drawing, but not for figures.
    bool isMeasured() const { return m_isMeasured; }
    /// The sum of the lengths of all labels.
    Millimetres stripLength() const;
    /// The tape that the job uses: strip and leading margin; 0 without labels, which the printer does not
    /// feed tape for.
    Millimetres tapeUsed() const;
    /// Whether the end of the strip stays in the printer; false without labels.
    bool isEndHeld() const { return !m_labels.empty() && m_labels.back().end.held; }

    bool operator==(const CutPlan &) const = default;

private:
    StripEffects m_effects;
    std::optional<Millimetres> m_leadingMargin;
    std::vector<PlannedLabel> m_labels;
    std::vector<Piece> m_pieces;
    bool m_isMeasured = true;
};

} // namespace strip
} // namespace host
