// SPDX-License-Identifier: Apache-2.0
#include "DocumentPaper.h"

#include <host/base/Units.h>

#include <cmath>

namespace dialog {
inline namespace paper {

namespace {

/// In points. Lengths are given in hundredths of millimetres.
constexpr double exact = 0.01 * host::pointsPerMillimetre;
/// Documents round their pages to whole points or to tenths of millimetres.
constexpr double rounded = 0.5;

/// By how many points the sizes differ, in the direction in which they differ more.
double difference(const QSizeF &one, const QSizeF &other)
{
    return std::max(std::abs(one.width() - other.width()), std::abs(one.height() - other.height()));
}

/// The same, turned where that comes nearer.
double differenceTurned(const QSizeF &one, const QSizeF &other)
{
    return std::min(difference(one, other), difference(one.transposed(), other));
}

bool isWhole(double points)
{
    constexpr double asWritten = 0.001;
    return std::abs(points - std::round(points)) < asWritten;
}

/// The paper that differs least, as long as it differs by no more than rounding does; upright ones come
/// first, and of equal ones the first. Null when there is none.
const host::PpdPaper *nearestPaper(const std::vector<host::PpdPaper> &papers, const QSizeF &page)
{
    const host::PpdPaper *nearest = nullptr;
    double least = rounded;
    for (const QSizeF &size : {page, page.transposed()}) {
        for (const host::PpdPaper &paper : papers) {
            const double each = difference(paper.size, size);
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
                                           const FreeSize &freeSize)
{
    if (page.isEmpty())
        return std::nullopt;
    const host::PpdPaper *const nearest = nearestPaper(papers, page);
    const bool isRounded = isWhole(page.width()) && isWhole(page.height());
    if (nearest && (isRounded || fitsExactly(*nearest, page)))
        return *nearest;
    for (const QSizeF &size : {page, page.transposed()}) {
        if (std::optional<host::PpdPaper> paper = freeSize(size))
            return paper;
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

} // namespace paper
} // namespace dialog
