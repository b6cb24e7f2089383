// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Result.h"

#include <optional>
#include <vector>

namespace host {

enum class PageRangeFailure {
    NotUnderstood, ///< something else than numbers and ranges
    OutOfDocument, ///< a page that the document does not have
    TooMany,       ///< more labels than mostLabels
};
using PageRangeError = Failure<PageRangeFailure>;

/// Whether copies come out label by label (1 1 2 2) or set by set (1 2 1 2).
enum class Collate { No, Yes };

/// The largest number of copies of one job.
inline constexpr int mostCopies = 9999;
/// The largest number of labels of one job: some kilometres of tape.
inline constexpr int mostLabels = 100'000;

/// The pages that a text such as "1-3, 5, 8-" names, counted from 0, each once and in the document's order;
/// all pages for a blank text. Pages in the text count from 1; "8-" goes on to the last.
Result<std::vector<int>, PageRangeError> parsePageRanges(const QString &text, int pageCount);

/// What is wrong with such a text whatever the document; nothing when some document has the pages.
std::optional<PageRangeError> checkPageRanges(const QString &text);

/// The pages in the order in which they are printed.
std::vector<int> printOrder(const std::vector<int> &pages, int copies, Collate collate);

} // namespace host
