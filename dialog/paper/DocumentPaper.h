// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

#include <functional>

namespace dialog {
inline namespace paper {

/// The free size of width and length in points; nothing where the printer does not take it.
using FreeSize = std::function<std::optional<host::PpdPaper>(const QSizeF &points)>;

/// The paper for pages of that size in points, upright or turned: one of exactly this size; else, for a size
/// in whole points, which many programs round to, the nearest one; else a free size; else the nearest one all
/// the same. Nothing when none of this comes near, and for an empty page.
std::optional<host::PpdPaper> paperForPage(const std::vector<host::PpdPaper> &papers, const QSizeF &page,
                                           const FreeSize &freeSize);

/// Whether both have one size, upright or turned.
bool fitsExactly(const host::PpdPaper &paper, const QSizeF &page);

} // namespace paper
} // namespace dialog
