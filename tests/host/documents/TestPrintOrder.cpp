// SPDX-License-Identifier: Apache-2.0
#include <host/documents/PrintOrder.h>

#include <gtest/gtest.h>

using host::Collate;
using host::PageRangeErrorKind;

namespace {

template<typename... Arguments>
std::vector<int> numbersInOrder(const std::vector<std::vector<int>> &pages, Arguments... arguments)
{
    return host::pageNumbers(host::printOrder(pages, arguments...));
}

} // namespace

TEST(PageRanges, NamePagesOnceAndInOrder)
{
    struct Row {
        const char *text;
        std::vector<int> pages;
    };
    const Row rows[] = {
        {"", {0, 1, 2, 3, 4}},
        {"  ", {0, 1, 2, 3, 4}},
        {"1", {0}},
        {"5", {4}},
        {"2-4", {1, 2, 3}},
        {"4-", {3, 4}},
        {"5,1", {0, 4}},
        {"1-3, 2-4 ,2", {0, 1, 2, 3}},
        {" 2 - 3 ", {1, 2}},
        {"3-3", {2}},
        {"1-5", {0, 1, 2, 3, 4}},
    };
    for (const Row &row : rows) {
        const auto pages = host::parsePageRanges(QLatin1String(row.text), {5});
        ASSERT_TRUE(pages) << row.text << ": " << pages.error().message.toStdString();
        EXPECT_EQ(pages.value(), row.pages) << row.text;
    }
}

TEST(PageRanges, RefuseWithAReason)
{
    const std::pair<const char *, PageRangeErrorKind> rows[] = {
        {"0", PageRangeErrorKind::OutOfDocument},     {"6", PageRangeErrorKind::OutOfDocument},
        {"4-6", PageRangeErrorKind::OutOfDocument},   {"6-", PageRangeErrorKind::OutOfDocument},
        {"3-2", PageRangeErrorKind::NotUnderstood},   {"one", PageRangeErrorKind::NotUnderstood},
        {"1,,2", PageRangeErrorKind::NotUnderstood},  {"-3", PageRangeErrorKind::NotUnderstood},
        {"1-2-3", PageRangeErrorKind::NotUnderstood}, {"99999999999", PageRangeErrorKind::NotUnderstood},
        {",", PageRangeErrorKind::NotUnderstood},
    };
    for (const auto &[text, kind] : rows) {
        const auto pages = host::parsePageRanges(QLatin1String(text), {5});
        ASSERT_FALSE(pages) << text;
        EXPECT_EQ(pages.error().kind, kind) << text;
        EXPECT_TRUE(pages.error().message.contains(QLatin1String(text)));
    }
}

TEST(PageRanges, AreSentInAscendingOrder)
{
    const std::pair<const char *, const char *> rows[] = {
        {"", ""},
        {" ", ""},
        {"1", "1"},
        {"5,1", "1,5"},
        {"5,1-3", "1-3,5"},
        {"1,1-3", "1-3"},
        {"1-3,3", "1-3"},
        {"1-3, 4", "1-4"},
        {"2-,1", "1-"},
        {"3-,7", "3-"},
        {"4-6,1-9", "1-9"},
        {"8-,2-3", "2-3,8-"},
        {"7-7", "7"},
        {"2-2147483647", "2-"},
        // Rejected texts stay rejected.
        {"1 2", "1 2"},
        {"3-1,2", "3-1,2"},
        {"5,0", "5,0"},
        {"a, b", "a, b"},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(host::canonicalPageRanges(QLatin1String(text)), QLatin1String(expected)) << text;
}

TEST(PageRanges, CanBeCheckedBeforeThereIsADocument)
{
    for (const char *good : {"", "  ", "1", "1-3, 5", "8-", "999999999", "7-7", "1-2147483647"})
        EXPECT_TRUE(host::checkPageRanges(QString::fromLatin1(good))) << good;
    for (const char *bad : {"a", "3-1", "0", "0-2", "1,", "-5", "1--2", "1 2", "99999999999"}) {
        const auto checked = host::checkPageRanges(QString::fromLatin1(bad));
        ASSERT_FALSE(checked) << bad;
        EXPECT_TRUE(checked.error().message.contains(QLatin1String(bad)));
    }
}

TEST(PrintOrder, GoesSetBySetOrLabelByLabel)
{
    EXPECT_EQ(numbersInOrder({{0, 2, 3}}, 1, Collate::Yes), (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(numbersInOrder({{0, 2}}, 3, Collate::Yes), (std::vector<int>{0, 2, 0, 2, 0, 2}));
    EXPECT_EQ(numbersInOrder({{0, 2}}, 3, Collate::No), (std::vector<int>{0, 0, 0, 2, 2, 2}));
    EXPECT_TRUE(numbersInOrder({}, 3, Collate::Yes).empty());
    using host::PageOrder;
    EXPECT_EQ(numbersInOrder({{0, 2}, {3, 4}}, 2, Collate::Yes, PageOrder::Reverse),
              (std::vector<int>{2, 0, 2, 0, 4, 3, 4, 3}));
    EXPECT_EQ(numbersInOrder({{0, 2}}, 2, Collate::No, PageOrder::Reverse), (std::vector<int>{2, 2, 0, 0}));
}

TEST(PrintOrder, CopiesAndDocumentsEndWithTheirLastPage)
{
    using host::PrintedPage;
    EXPECT_EQ(host::printOrder({{0, 1}, {2}}, 2, Collate::Yes), (std::vector<PrintedPage>{{0, false, false},
                                                                                          {1, true, false},
                                                                                          {0, false, false},
                                                                                          {1, true, true},
                                                                                          {2, true, false},
                                                                                          {2, true, true}}));
    EXPECT_EQ(
        host::printOrder({{0, 1}, {}}, 2, Collate::No),
        (std::vector<PrintedPage>{{0, false, false}, {0, false, false}, {1, false, false}, {1, true, true}}));
}

TEST(PageRanges, ApplyToEveryDocumentByItself)
{
    struct Row {
        const char *text;
        std::vector<int> pages;
    };
    // Pages 0 to 2, 3, and 4 to 8.
    const std::vector<int> counts{3, 1, 5};
    const Row rows[] = {
        {"", {0, 1, 2, 3, 4, 5, 6, 7, 8}}, {"1", {0, 3, 4}}, {"2-", {1, 2, 5, 6, 7, 8}}, {"5", {8}},
        {"1-2, 4", {0, 1, 3, 4, 5, 7}},
    };
    for (const Row &row : rows) {
        const auto pages = host::parsePageRanges(QLatin1String(row.text), counts);
        ASSERT_TRUE(pages) << row.text << ": " << pages.error().message.toStdString();
        EXPECT_EQ(pages.value(), row.pages) << row.text;
    }
    for (const char *const text : {"6", "3-6", "0"}) {
        const auto pages = host::parsePageRanges(QLatin1String(text), counts);
        ASSERT_FALSE(pages) << text;
        EXPECT_EQ(pages.error().kind, PageRangeErrorKind::OutOfDocument) << text;
    }
}

TEST(PrintOrder, MakesCopiesOfEachDocumentByItself)
{
    const auto documents = host::pagesByDocument({0, 2, 4, 5}, {3, 1, 5});
    EXPECT_EQ(documents, (std::vector<std::vector<int>>{{0, 2}, {}, {4, 5}}));
    EXPECT_EQ(numbersInOrder(documents, 2, Collate::Yes), (std::vector<int>{0, 2, 0, 2, 4, 5, 4, 5}));
    EXPECT_EQ(numbersInOrder(documents, 2, Collate::No), (std::vector<int>{0, 0, 2, 2, 4, 4, 5, 5}));
    EXPECT_TRUE(host::pagesByDocument({}, {}).empty());
}
