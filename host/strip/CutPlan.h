// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutSettings.h"

#include <host/documents/LabelExtent.h>

#include <optional>
#include <span>
#include <vector>

namespace host {

/// What the printer does to the tape after a label.
struct LabelEnd {
    /// Cut through tape and backing.
    bool fullCut = false;
    /// Cut through the label layer only; the backing holds the strip together.
    bool halfCut = false;
    /// A printed line to cut along by hand.
    bool cutMark = false;
    /// The end stays in the printer, and the next job goes on from here.
    bool held = false;

    bool operator==(const LabelEnd &) const = default;
};

/// A label on the strip.
struct PlannedLabel {
    /// The document's page, counted from 0.
    int page = 0;
    /// Along the tape, in millimetres, after blank is taken off.
    double length = 0.0;
    /// What was taken off before the label's first mark, in millimetres.
    double trimmedBefore = 0.0;
    LabelEnd end;
    /// Whether the length is final: blank that is to be taken off has been measured.
    bool isMeasured = true;

    bool operator==(const PlannedLabel &) const = default;
};

/// What one can take away: the stretch between two full cuts, or an end of the strip.
struct Piece {
    std::size_t firstLabel = 0;
    std::size_t labelCount = 0;
    /// In millimetres.
    double length = 0.0;
    /// Its end is still in the printer.
    bool held = false;
    /// Whether the lengths of all its labels are final.
    bool isMeasured = true;

    bool operator==(const Piece &) const = default;
};

/// How a job comes out of the printer: its labels in print order, and what happens after each. The one
/// plan of cuts, from which the preview, the printed strip, the words and the figures are all made.
class CutPlan {
public:
    /// The plan for the pages in print order. The extents are those of the document's pages; every page
    /// in print order is an index into them. The leading margin, in millimetres, is the tape that the printer
    /// feeds before its first label; nothing when the printer does not tell.
    static CutPlan make(const CutSettings &settings, std::span<const int> pagesInOrder,
                        std::span<const LabelExtent> extents, std::optional<double> leadingMargin);

    const CutSettings &settings() const { return m_settings; }
    const std::vector<PlannedLabel> &labels() const { return m_labels; }
    const std::vector<Piece> &pieces() const { return m_pieces; }
    const std::optional<double> &leadingMargin() const { return m_leadingMargin; }
    /// Whether all lengths are final. Until then they are good for drawing only, not for figures.
    bool isMeasured() const { return m_isMeasured; }
    /// The labels' lengths together, in millimetres.
    double stripLength() const;
    /// The tape that the job takes: strip and leading margin, in millimetres.
    double tapeUsed() const { return stripLength() + m_leadingMargin.value_or(0.0); }
    /// Whether the end stays in the printer.
    bool isEndHeld() const { return !m_labels.empty() && m_labels.back().end.held; }

    bool operator==(const CutPlan &) const = default;

private:
    CutSettings m_settings;
    std::optional<double> m_leadingMargin;
    std::vector<PlannedLabel> m_labels;
    std::vector<Piece> m_pieces;
    bool m_isMeasured = true;
};

} // namespace host
