// SPDX-License-Identifier: Apache-2.0
#include "PrintOrder.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace host {
inline namespace documents {

namespace {

struct PrintOrderText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::PrintOrder)
};

struct Range {
    int first;
    int last;
};

std::optional<Range> parseRange(const QString &text, int pageCount)
{
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,10})\\s*(?:(-)\\s*(\\d{1,10})?\\s*)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    // IPP's number for "to the last page"; larger numbers have the same meaning.
    constexpr qint64 end = std::numeric_limits<int>::max();
    const auto number = [&](int group) {
        return static_cast<int>(qMin(match.captured(group).toLongLong(), end));
    };
    const int first = number(1);
    if (match.capturedLength(2) == 0)
        return Range{first, first};
    const bool isOpen = match.capturedLength(3) == 0 || number(3) == end;
    return Range{first, isOpen ? qMax(first, pageCount) : number(3)};
}

PageRangeError notUnderstood(const QString &text)
{
    return {PageRangeErrorKind::NotUnderstood,
            PrintOrderText::tr("Invalid page range \"%1\": use numbers and ranges such as 1-3, 5").arg(text)};
}

QStringList rangeTexts(const QString &text)
{
    return text.trimmed().isEmpty() ? QStringList() : text.split(u',');
}

/// Returns which pages of a document with this number of pages are selected.
Result<std::vector<bool>, PageRangeError> parseChosen(const QString &text, int pageCount, PagesBeyond beyond)
{
    std::vector<bool> chosen(static_cast<std::size_t>(pageCount), text.trimmed().isEmpty());
    for (const QString &part : rangeTexts(text)) {
        std::optional<Range> range = parseRange(part, pageCount);
        if (!range || range->first > range->last)
            return notUnderstood(text);
        if (beyond == PagesBeyond::Skip)
            range = Range{qBound(1, range->first, pageCount + 1), qMin(range->last, pageCount)};
        if (range->first < 1 || range->last > pageCount)
            return PageRangeError{
                PageRangeErrorKind::OutOfDocument,
                PrintOrderText::tr("Cannot print the pages \"%1\": the document's last page is %2")
                    .arg(text)
                    .arg(pageCount)};
        for (int page = range->first; page <= range->last; ++page)
            chosen[static_cast<std::size_t>(page) - 1] = true;
    }
    return chosen;
}

} // namespace

Result<void, PageRangeError> checkPageRanges(const QString &text)
{
    for (const QString &part : rangeTexts(text)) {
        const std::optional<Range> range = parseRange(part, std::numeric_limits<int>::max());
        if (!range || range->first > range->last || range->first < 1)
            return notUnderstood(text);
    }
    return {};
}

QString canonicalPageRanges(const QString &text)
{
    // Without its blanks, "1 2" would be another page.
    if (!checkPageRanges(text))
        return text;
    constexpr int end = std::numeric_limits<int>::max();
    std::vector<Range> ranges;
    for (const QString &part : rangeTexts(text))
        ranges.push_back(parseRange(part, end).value());
    std::ranges::sort(ranges, {}, &Range::first);
    std::vector<Range> merged;
    for (const Range &range : ranges) {
        const bool touches =
            !merged.empty() && (merged.back().last == end || range.first <= merged.back().last + 1);
        if (touches)
            merged.back().last = std::max(merged.back().last, range.last);
        else
            merged.push_back(range);
    }
    QStringList texts;
    for (const Range &range : merged) {
        const QString first = QString::number(range.first);
        texts.append(range.last == range.first ? first
                     : range.last == end       ? first + u'-'
                                               : first + u'-' + QString::number(range.last));
    }
    return texts.join(u',');
}

Result<std::vector<int>, PageRangeError>
parsePageRanges(const QString &text, const std::vector<int> &pageCounts, PageSet set, PagesBeyond beyond)
{
    const auto isInSet = [&](int page) {
        const bool isOdd = page % 2 == 0; // counted from 0 here, from 1 by people
        return set == PageSet::All || isOdd == (set == PageSet::Odd);
    };
    const int longest = pageCounts.empty() ? 0 : std::ranges::max(pageCounts);
    const auto chosen = parseChosen(text, longest, beyond);
    if (!chosen)
        return chosen.error();
    std::vector<int> pages;
    int first = 0;
    for (const int count : pageCounts) {
        for (int page = 0; page < count; ++page) {
            if (chosen.value()[static_cast<std::size_t>(page)] && isInSet(page))
                pages.push_back(first + page);
        }
        first += count;
    }
    if (pages.empty() && first > 0)
        return PageRangeError{PageRangeErrorKind::NoPage,
                              PrintOrderText::tr("Nothing to print: no page of the document is selected")};
    return pages;
}

std::vector<std::vector<int>> pagesByDocument(const std::vector<int> &pages,
                                              const std::vector<int> &pageCounts)
{
    std::vector<std::vector<int>> documents;
    auto begin = pages.begin();
    int next = 0;
    for (const int count : pageCounts) {
        next += count;
        const auto end = std::lower_bound(begin, pages.end(), next);
        documents.emplace_back(begin, end);
        begin = end;
    }
    return documents;
}

std::vector<PrintedPage> printOrder(const std::vector<std::vector<int>> &pagesByDocument, int copies,
                                    Collate collate, PageOrder pageOrder)
{
    std::vector<PrintedPage> order;
    for (std::vector<int> pages : pagesByDocument) {
        if (pages.empty())
            continue;
        if (pageOrder == PageOrder::Reverse)
            std::ranges::reverse(pages);
        const bool isCollated = collate == Collate::Yes;
        for (int set = 0; set < (isCollated ? copies : 1); ++set) {
            for (const int page : pages)
                order.insert(order.end(), static_cast<std::size_t>(isCollated ? 1 : copies), {page});
            order.back().endsCopy = true;
        }
        order.back().endsDocument = true;
    }
    return order;
}

std::vector<int> pageNumbers(const std::vector<PrintedPage> &order)
{
    std::vector<int> numbers(order.size());
    std::ranges::transform(order, numbers.begin(), &PrintedPage::page);
    return numbers;
}

} // namespace documents
} // namespace host
