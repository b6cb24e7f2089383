// SPDX-License-Identifier: Apache-2.0
#include "StripLayout.h"

#include <algorithm>

namespace host {
inline namespace strip {

namespace {

// All in units of StripLayout::unit().
constexpr double gapAfterCut = 7.0;
constexpr double above = 9.0;
constexpr double below = 9.0;
constexpr double before = 2.0;
/// Room for the drawing of the printer that holds the end, or of a torn end.
constexpr double afterEnd = 26.0;

} // namespace

StripLayout::StripLayout(const CutPlan &plan, Millimetres tapeWidth, Millimetres unit)
    : m_plan(plan)
    , m_tapeWidth(tapeWidth.number())
    , m_unit(unit.number())
{
    double x = plan.labels().empty() ? 0.0 : plan.leadingMargin().value_or(Millimetres()).number();
    m_labelStarts.reserve(plan.labels().size());
    for (const PlannedLabel &planned : plan.labels()) {
        m_labelStarts.push_back(x);
        x += planned.length.number() + (planned.end.fullCut ? gapAfterCut * m_unit : 0.0);
    }
}

QRectF StripLayout::bounds() const
{
    const double end = m_labelStarts.empty() ? 0.0 : label(m_labelStarts.size() - 1).right();
    return {-before * m_unit, -above * m_unit, end + (before + afterEnd) * m_unit,
            m_tapeWidth + (above + below) * m_unit};
}

QRectF StripLayout::leadingMargin() const
{
    return {0.0, 0.0, m_labelStarts.empty() ? 0.0 : m_labelStarts.front(), m_tapeWidth};
}

QRectF StripLayout::label(std::size_t index) const
{
    return {m_labelStarts[index], 0.0, m_plan.labels()[index].length.number(), m_tapeWidth};
}

QRectF StripLayout::piece(std::size_t index) const
{
    const Piece &piece = m_plan.pieces()[index];
    const QRectF first = index == 0 ? leadingMargin() : label(piece.firstLabel);
    return first.united(label(piece.firstLabel)).united(label(piece.firstLabel + piece.labelCount - 1));
}

double StripLayout::boundaryAfter(std::size_t index) const
{
    return label(index).right() + (m_plan.labels()[index].end.fullCut ? gapAfterCut * m_unit / 2.0 : 0.0);
}

std::pair<std::size_t, std::size_t> StripLayout::labelsBetween(double left, double right) const
{
    const auto after = std::ranges::upper_bound(m_labelStarts, left);
    const auto end = std::ranges::lower_bound(m_labelStarts, right);
    const auto first = after == m_labelStarts.begin() ? after : after - 1;
    return {static_cast<std::size_t>(first - m_labelStarts.begin()),
            static_cast<std::size_t>(std::max(first, end) - m_labelStarts.begin())};
}

std::pair<std::size_t, std::size_t> StripLayout::piecesBetween(double left, double right) const
{
    const std::vector<Piece> &pieces = m_plan.pieces();
    const auto [firstLabel, endLabel] = labelsBetween(left, right);
    const auto after = std::ranges::upper_bound(pieces, firstLabel, {}, &Piece::firstLabel);
    const auto end = std::ranges::lower_bound(pieces, endLabel, {}, &Piece::firstLabel);
    const auto first = after == pieces.begin() ? after : after - 1;
    return {static_cast<std::size_t>(first - pieces.begin()),
            static_cast<std::size_t>(std::max(first, end) - pieces.begin())};
}

} // namespace strip
} // namespace host
