// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

#include <QString>

#include <optional>
#include <vector>

namespace host {
inline namespace documents {

enum class PageRangeErrorKind {
    NotUnderstood, ///< something else than numbers and ranges
    OutOfDocument, ///< a page that no document has
    NoPage,        ///< no page is left to be printed
    TooMany,       ///< more labels than maxLabels
};
using PageRangeError = Failure<PageRangeErrorKind>;

/// Whether copies come out label by label (1 1 2 2) or set by set (1 2 1 2).
enum class Collate { No, Yes };

/// Which of the chosen pages are printed, by their numbers.
enum class PageSet { All, Odd, Even };

/// What becomes of named pages that no document has. People are told of them; what a queue or lpoptions name
/// for all documents is left out, as print servers do it.
enum class PagesBeyond { Reject, Skip };

/// Which page comes out first. People whose tape is wound up want the last one.
enum class PageOrder { Normal, Reverse };

/// The largest number of copies of one job.
inline constexpr int maxCopies = 9999;
/// The largest number of labels of one job: some kilometres of tape.
inline constexpr int maxLabels = 100'000;

/// The pages that a text such as "1-3, 5, 8-" names, of documents with so many pages each, which are printed
/// one after the other. The text applies to every document by itself, as lp's -P does: "1" is the first page
/// of each. Pages in the text count from 1 and "8-" goes on to the last, as does "8-2147483647". A blank text
/// names all pages. A page that no document has is an error, unless such pages are to be left out; so is a
/// text that leaves no page. The answer counts from 0 through all documents, each page once and in order, and
/// of the pages only those of the set.
Result<std::vector<int>, PageRangeError> parsePageRanges(const QString &text,
                                                         const std::vector<int> &pageCounts,
                                                         PageSet set = PageSet::All,
                                                         PagesBeyond beyond = PagesBeyond::Reject);

/// The same pages as IPP wants them (RFC 8011, 5.2.7): in ascending order, no page twice. "5,1-3,2" is
/// "1-3,5". Empty for all pages; a text that checkPageRanges() rejects is given back as it is, without
/// blanks.
QString canonicalPageRanges(const QString &text);

/// What is wrong with such a text whatever the document; nothing when some document has the pages.
std::optional<PageRangeError> checkPageRanges(const QString &text);

/// The pages, counted through documents of so many pages each and in order, as one list for each document.
std::vector<std::vector<int>> pagesByDocument(const std::vector<int> &pages,
                                              const std::vector<int> &pageCounts);

/// The pages in the order in which they are printed. Copies are made of each document by itself, as a print
/// server makes them: all copies of the first document come before the second, whatever the order of the
/// pages.
std::vector<int> printOrder(const std::vector<std::vector<int>> &pagesByDocument, int copies, Collate collate,
                            PageOrder pageOrder = PageOrder::Normal);

} // namespace documents
} // namespace host
