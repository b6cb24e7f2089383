// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

namespace dialog {
inline namespace paper {

/// Papers of one width.
struct PaperGroup {
    /// The translated heading, such as "12 mm wide".
    QString title;
    /// Indexes into the list of all papers, in the order of the PPD.
    std::vector<std::size_t> papers;
};

/// Groups the papers by width, the narrowest first: the width is what users know of the loaded tape. Widths
/// that differ by up to 0.3 mm form one group; tapes on sale differ by more. Returns no groups if they would
/// not help: if all papers have the same width, or each has its own.
std::vector<PaperGroup> groupPapers(const std::vector<host::PpdPaper> &papers);

} // namespace paper
} // namespace dialog
