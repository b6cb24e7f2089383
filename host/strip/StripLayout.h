// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutPlan.h"

#include <QRectF>

#include <utility>

namespace host {

/// Where everything of a strip lies when it is drawn: x along the tape from the end that left the printer
/// first, y across it, in millimetres; the tape's upper edge is y = 0. Pieces are drawn apart.
///
/// What is not tape (gaps, figures, scissors) is measured in units, so that it stays legible when the
/// tape is drawn small: one unit is about a third of a line of text.
class StripLayout {
public:
    /// The plan is borrowed. Width across the tape and the unit in millimetres.
    StripLayout(const CutPlan &plan, double tapeWidth, double unit);

    const CutPlan &plan() const { return m_plan; }
    double tapeWidth() const { return m_tapeWidth; }
    double unit() const { return m_unit; }

    /// Everything that is drawn.
    QRectF bounds() const;
    /// The blank tape before the first label; empty without one.
    QRectF leadingMargin() const;
    QRectF label(std::size_t index) const;
    /// From its first label (or leading margin) to its end.
    QRectF piece(std::size_t index) const;
    /// The middle of the boundary after the label: of the gap for a full cut.
    double boundaryAfter(std::size_t index) const;
    /// The labels that the stretch from left to right touches: first and one past the last.
    std::pair<std::size_t, std::size_t> labelsBetween(double left, double right) const;
    /// The same for pieces.
    std::pair<std::size_t, std::size_t> piecesBetween(double left, double right) const;

private:
    const CutPlan &m_plan;
    double m_tapeWidth;
    double m_unit;
    std::vector<double> m_labelStarts;
};

} // namespace host
