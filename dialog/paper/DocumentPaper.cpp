// SPDX-License-Identifier: Apache-2.0
#include "DocumentPaper.h"

#include <host/base/Length.h>

#include <cmath>

namespace dialog {
inline namespace paper {

namespace {

/// In points. Lengths are precise to 0.01 mm.
constexpr host::Points exact(host::Millimetres(0.01));
/// Documents round their page sizes to whole points or to 0.1 mm.
constexpr host::Points rounded(0.5);

/// Returns the difference of the widths or of the lengths, whichever is larger.
host::Points difference(const QSizeF &one, const QSizeF &other)
{
    return host::Points(
        std::max(std::abs(one.width() - other.width()), std::abs(one.height() - other.height())));
}

/// Returns the smaller of the differences with the first size upright and rotated.
host::Points differenceTurned(const QSizeF &one, const QSizeF &other)
{
    return std::min(difference(one, other), difference(one.transposed(), other));
}

bool isWhole(double points)
{
    constexpr double asWritten = 0.001;
    return std::abs(points - std::round(points)) < asWritten;
}

/// Returns the paper with the smallest difference, which rounding can explain. If differences are equal,
/// upright papers take precedence over rotated ones, and earlier papers over later ones. Null if there is
/// none.
const host::PpdPaper *nearestPaper(const std::vector<host::PpdPaper> &papers, const QSizeF &page)
{
    const host::PpdPaper *nearest = nullptr;
    host::Points least = rounded;
    for (const QSizeF &size : {page, page.transposed()}) {
        for (const host::PpdPaper &paper : papers) {
            const host::Points each = difference(paper.size, size);
            if (each < least || (!nearest && each <= least)) {
                nearest = &paper;
                least = each;
            }
        }
    }
    return nearest;
}

} // namespace

bool fitsExactly(const host::PpdPaper &paper, const QSizeF &page)
{
    return differenceTurned(paper.size, page) <= exact;
}

std::optional<host::PpdPaper> paperForPage(const std::vector<host::PpdPaper> &papers, const QSizeF &page,
                                           const CustomSize &customSize)
{
    if (page.isEmpty())
        return std::nullopt;
    const host::PpdPaper *const nearest = nearestPaper(papers, page);
    const bool isRounded = isWhole(page.width()) && isWhole(page.height());
    if (nearest && (isRounded || fitsExactly(*nearest, page)))
        return *nearest;
    for (const QSizeF &size : {page, page.transposed()}) {
        if (std::optional<host::PpdPaper> paper = customSize(size))
            return paper;
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

} // namespace paper
} // namespace dialog
