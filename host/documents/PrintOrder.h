// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

#include <QString>

#include <vector>

namespace host {
inline namespace documents {

/// Why a text does not select pages.
enum class PageRangeErrorKind {
    NotUnderstood, ///< something else than numbers and ranges
    OutOfDocument, ///< a page that no document has
    NoPage,        ///< no page is left to be printed
    TooMany,       ///< more labels than maxLabels
};
using PageRangeError = Failure<PageRangeErrorKind>;

/// Whether copies are printed label by label (1 1 2 2) or set by set (1 2 1 2).
enum class Collate { No, Yes };

/// Which of the selected pages are printed, by their numbers.
enum class PageSet { All, Odd, Even };

/// How pages beyond the end of all documents are handled. They are an error if the user names them, and are
/// skipped if they come from defaults of a queue or of lpoptions, as print servers do.
enum class PagesBeyond { Reject, Skip };

/// The output order (IPP "outputorder"). Reverse suits tape that is wound up as it is printed.
enum class PageOrder { Normal, Reverse };

/// The max number of copies of a job.
inline constexpr int maxCopies = 9999;
/// The max number of labels of a job: some kilometres of tape.
inline constexpr int maxLabels = 100'000;

/// Returns the pages that a text such as "1-3, 5, 8-" selects from documents with these page counts, which
/// are printed one after the other. The text applies to each document separately, as lp's -P: "1" is the
/// first page of each. Pages in the text are numbered from 1; "8-" and "8-2147483647" extend to the last
/// page. A blank text selects all pages. A page that no document has is an error, unless such pages are
/// skipped; so is a text that selects no page. The result numbers pages from 0 through all documents, each
/// page once and in ascending order, and contains only pages of the set.
Result<std::vector<int>, PageRangeError> parsePageRanges(const QString &text,
                                                         const std::vector<int> &pageCounts,
                                                         PageSet set = PageSet::All,
                                                         PagesBeyond beyond = PagesBeyond::Reject);

/// Returns the same pages as IPP requires (RFC 8011, 5.2.7): in ascending order, each page once. "5,1-3,2"
/// becomes "1-3,5". Empty for all pages. A text that checkPageRanges() rejects is returned unchanged.
QString canonicalPageRanges(const QString &text);

/// Returns an error if no document can have the pages.
Result<void, PageRangeError> checkPageRanges(const QString &text);

/// Returns the pages, numbered through documents with these page counts, as one list for each document.
std::vector<std::vector<int>> pagesByDocument(const std::vector<int> &pages,
                                              const std::vector<int> &pageCounts);

/// A page in the order in which pages are printed.
struct PrintedPage {
    /// Numbered from 0 through all documents.
    int page = 0;
    /// Whether it is the last page of one copy of its document. Without collating, the copies of a page
    /// follow each other, and only the last page of the document ends a copy.
    bool endsCopy = false;
    /// Whether it is the last page of all copies of its document.
    bool endsDocument = false;

    bool operator==(const PrintedPage &) const = default;
};

/// Returns the pages in the order in which they are printed. Each document is copied separately, as by a
/// print server: all copies of the first document precede the second, whatever the order of the pages.
std::vector<PrintedPage> printOrder(const std::vector<std::vector<int>> &pagesByDocument, int copies,
                                    Collate collate, PageOrder pageOrder = PageOrder::Normal);

/// Returns the numbers of the pages.
std::vector<int> pageNumbers(const std::vector<PrintedPage> &order);

} // namespace documents
} // namespace host
