// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

#include <functional>

namespace dialog {
inline namespace paper {

/// Returns the custom paper with this width and length in points; absent if the printer does not support it.
using CustomSize = std::function<std::optional<host::PpdPaper>(const QSizeF &points)>;

/// Returns the paper for pages of this size in points, upright or rotated. In order of preference: a paper of
/// exactly this size; the nearest paper, if the size is in whole points, to which many programs round; a
/// custom size; the nearest paper. A paper whose width or length differs by more than 0.5 points is not
/// considered. Absent if there is no such paper, or if the page size is empty.
std::optional<host::PpdPaper> paperForPage(const std::vector<host::PpdPaper> &papers, const QSizeF &page,
                                           const CustomSize &customSize);

/// Returns whether both sizes are equal to 0.01 mm, upright or rotated. The page size is in points.
bool fitsExactly(const host::PpdPaper &paper, const QSizeF &page);

} // namespace paper
} // namespace dialog
