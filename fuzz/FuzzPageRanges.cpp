// SPDX-License-Identifier: Apache-2.0
// Page ranges as users and lpoptions write them, for a document with as many pages as the first byte states:
// the pages are ascending, of the document and of the set, and the canonical form selects the same ones.
#include "FuzzInput.h"

#include <host/documents/PrintOrder.h>

#include <algorithm>

namespace {

using Pages = host::Result<std::vector<int>, host::PageRangeError>;

void examine(const Pages &pages, int count, host::PageSet set)
{
    if (!pages) {
        if (pages.error().message.isEmpty())
            qFatal("rejected without a message");
        return;
    }
    const std::vector<int> &all = pages.value();
    const bool isAscending = std::ranges::adjacent_find(all, std::ranges::greater_equal()) == all.end();
    if (!isAscending || (!all.empty() && (all.front() < 0 || all.back() >= count)))
        qFatal("pages that are not of the document, or not in order");
    const int remainder = set == host::PageSet::Even ? 1 : 0;
    if (set != host::PageSet::All &&
        !std::ranges::all_of(all, [&](int page) { return page % 2 == remainder; }))
        qFatal("pages that are not of the set");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const int count = input.byte();
    const QString text = QString::fromUtf8(input.bytes(size));
    const bool isPossible = static_cast<bool>(host::checkPageRanges(text));
    const QString canonical = host::canonicalPageRanges(text);
    if (host::canonicalPageRanges(canonical) != canonical)
        qFatal("the canonical form \"%s\" has another one", qPrintable(canonical));
    for (const host::PageSet set : {host::PageSet::All, host::PageSet::Odd, host::PageSet::Even}) {
        for (const host::PagesBeyond beyond : {host::PagesBeyond::Reject, host::PagesBeyond::Skip}) {
            const Pages pages = host::parsePageRanges(text, {count}, set, beyond);
            examine(pages, count, set);
            // The canonical form of pages beyond the end may lack them: "9,2-" is "2-".
            if (!isPossible || !pages)
                continue;
            const Pages again = host::parsePageRanges(canonical, {count}, set, beyond);
            if (!again || pages.value() != again.value())
                qFatal("\"%s\" and \"%s\" select different pages", qPrintable(text), qPrintable(canonical));
        }
    }
    return 0;
}
