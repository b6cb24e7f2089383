// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

namespace dialog {
inline namespace paper {

/// Papers of one width.
struct PaperGroup {
    /// "12 mm wide".
    QString title;
    /// Positions among all papers, in the PPD's order.
    std::vector<std::size_t> papers;
};

/// The papers by width, the narrowest first: the width is what is loaded, and what people know of it. Widths
/// that differ by less than anybody sells apart are one. Empty when groups would tell nothing: all papers
/// have one width, or every paper has another.
std::vector<PaperGroup> groupPapers(const std::vector<host::PpdPaper> &papers);

} // namespace paper
} // namespace dialog
