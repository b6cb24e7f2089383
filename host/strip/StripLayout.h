// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <QRectF>

#include <utility>

namespace host {
inline namespace strip {

/// The positions of all parts of a drawn strip, in millimetres: x runs along the tape from the end that left
/// the printer first, y across the tape; the upper edge of the tape is y = 0. Pieces are drawn with gaps
/// between them.
///
/// Everything except the tape (gaps, figures, scissors) is measured in units, so that it stays legible when
/// the tape is drawn small: one unit is about a third of the height of a line of text.
class StripLayout {
public:
    /// The plan is not owned and must outlive the layout. The width is that across the tape.
    StripLayout(const CutPlan &plan, Millimetres tapeWidth, Millimetres unit);

    /// What the layout was made of; lengths as differences of coordinates.
    const CutPlan &plan() const { return m_plan; }
    double tapeWidth() const { return m_tapeWidth; }
    double unit() const { return m_unit; }

    /// The bounding rectangle of the whole drawing.
    QRectF bounds() const;
    /// The blank tape before the first label; empty if the plan has no leading margin.
    QRectF leadingMargin() const;
    /// The tape of the label with this index in CutPlan::labels().
    QRectF label(std::size_t index) const;
    /// The tape of the piece with this index in CutPlan::pieces(), from its first label to its end. The first
    /// piece includes the leading margin.
    QRectF piece(std::size_t index) const;
    /// The position of the boundary after the label: its end or, for a full cut, the middle of the gap.
    double boundaryAfter(std::size_t index) const;
    /// The labels that lie at least partly between left and right: the index of the first one and the index
    /// past the last one.
    std::pair<std::size_t, std::size_t> labelsBetween(double left, double right) const;
    /// The pieces that lie at least partly between left and right, in the same form.
    std::pair<std::size_t, std::size_t> piecesBetween(double left, double right) const;

private:
    const CutPlan &m_plan;
    double m_tapeWidth;
    double m_unit;
    std::vector<double> m_labelStarts;
};

} // namespace strip
} // namespace host
