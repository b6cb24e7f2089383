// SPDX-License-Identifier: Apache-2.0
#include <host/cups/jobs/JobSettings.h>

#include <gtest/gtest.h>

using host::Collate;
using host::Destination;
using host::JobSettings;
using host::PageOrder;
using host::PageRangeErrorKind;
using host::PageSet;

TEST(JobSettings, TheUsersDefaultsStandOverTheQueues)
{
    struct Row {
        std::vector<host::NamedValue> queue;
        std::vector<host::NamedValue> user;
        JobSettings expected;
    };
    const Row rows[] = {
        {{}, {}, {}},
        {{{"copies", "2"}}, {}, {.copies = 2}},
        {{{"copies", "2"}}, {{"copies", "3"}}, {.copies = 3}},
        {{{"copies", "two"}}, {}, {}},
        {{}, {{"collate", "true"}}, {.collate = Collate::Yes}},
        {{}, {{"collate", "Yes"}}, {.collate = Collate::Yes}},
        {{{"collate", "true"}}, {{"collate", "false"}}, {.collate = Collate::No}},
        {{{"multiple-document-handling", "separate-documents-uncollated-copies"}},
         {},
         {.collate = Collate::No}},
        {{{"multiple-document-handling", "separate-documents-collated-copies"}},
         {},
         {.collate = Collate::Yes}},
        {{}, {{"page-ranges", "2-3"}}, {.pageRanges = QStringLiteral("2-3")}},
        {{}, {{"page-set", "odd"}}, {.pageSet = PageSet::Odd}},
        {{{"page-set", "odd"}}, {{"page-set", "all"}}, {.pageSet = PageSet::All}},
        {{{"outputorder", "reverse"}}, {}, {.order = PageOrder::Reverse}},
        {{{"outputorder", "reverse"}}, {{"outputorder", "normal"}}, {.order = PageOrder::Normal}},
        // Not about pages.
        {{{"job-priority", "50"}, {"KvMirror", "ON"}}, {{"orientation-requested", "4"}}, {}},
    };
    for (const Row &row : rows) {
        Destination destination;
        destination.queueOptions = row.queue;
        destination.userOptions = row.user;
        EXPECT_EQ(defaultPageSettings(destination), row.expected) << &row - rows;
    }
}

TEST(JobSettings, WishesStandOverDefaults)
{
    const JobSettings defaults{.copies = 3,
                               .collate = Collate::Yes,
                               .pageRanges = QStringLiteral("2"),
                               .pageSet = PageSet::Odd,
                               .order = PageOrder::Reverse};
    EXPECT_EQ(withDefaults({}, defaults), defaults);
    const JobSettings requested{.copies = 1,
                                .collate = Collate::No,
                                .pageRanges = QString(),
                                .pageSet = PageSet::All,
                                .order = PageOrder::Normal};
    EXPECT_EQ(withDefaults(requested, defaults), requested);
}

TEST(JobSettings, ChooseThePagesThatComeOut)
{
    const auto none = host::choosePages({}, {}, {2, 3});
    ASSERT_TRUE(none);
    EXPECT_EQ(none.value().pages, (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(none.value().copies, 1);
    EXPECT_EQ(none.value().collate, Collate::No);
    EXPECT_EQ(none.value().order, PageOrder::Normal);

    // Of every document by itself.
    const auto odd = host::choosePages({.copies = 2, .pageSet = PageSet::Odd}, {}, {2, 3});
    EXPECT_EQ(odd.value().pages, (std::vector<int>{0, 2, 4}));
    EXPECT_EQ(odd.value().copies, 2);
    const auto even =
        host::choosePages({.pageRanges = QStringLiteral("2-"), .pageSet = PageSet::Even}, {}, {2, 3});
    EXPECT_EQ(even.value().pages, (std::vector<int>{1, 3}));
    EXPECT_EQ(host::choosePages({.copies = 0}, {}, {1}).value().copies, 1);
    EXPECT_EQ(host::choosePages({.copies = 100'000}, {}, {1}).value().copies, host::maxCopies);
}

TEST(JobSettings, RefuseMoreLabelsThanAnybodyPrints)
{
    EXPECT_TRUE(host::choosePages({.copies = 10}, {}, {host::maxLabels / 10}));
    const auto tooMany = host::choosePages({.copies = 11}, {}, {host::maxLabels / 10});
    ASSERT_FALSE(tooMany);
    EXPECT_EQ(tooMany.error().kind, PageRangeErrorKind::TooMany);
}

TEST(JobSettings, PagesThatThereAreNotAreAnErrorWhenSomebodyWishesForThem)
{
    const auto pages = [](const char *requestedName, const char *defaultValue,
                          host::PageSet set = PageSet::All) {
        JobSettings requested{.pageSet = set};
        if (requestedName)
            requested.pageRanges = QLatin1String(requestedName);
        return host::choosePages(requested, {.pageRanges = QLatin1String(defaultValue)}, {6});
    };
    EXPECT_EQ(pages(nullptr, "2-10").value().pages, (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(pages(nullptr, "5-2147483647").value().pages, (std::vector<int>{4, 5}));
    EXPECT_EQ(pages(nullptr, "8,6").value().pages, std::vector<int>{5});
    EXPECT_EQ(pages("2-10", "1").error().kind, PageRangeErrorKind::OutOfDocument);
    // A job without pages is an error.
    EXPECT_EQ(pages(nullptr, "8-").error().kind, PageRangeErrorKind::NoPage);
    EXPECT_EQ(pages("1", "1", PageSet::Even).error().kind, PageRangeErrorKind::NoPage);
}
