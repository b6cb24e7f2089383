// SPDX-License-Identifier: Apache-2.0
// How papers are sorted for display.
#include <dialog/paper/PaperGroups.h>
#include <dialog/paper/PaperList.h>
#include <host/base/Length.h>

#include <gtest/gtest.h>

TEST(PaperGroups, AreWidthsAndOnlyWhereTheyHelp)
{
    struct Row {
        const char *name;
        std::vector<double> widths; ///< in millimetres
        QStringList groups;
    };
    const Row rows[] = {
        {"none", {}, {}},
        {"one paper", {12}, {}},
        {"one width", {12, 12, 12.1}, {}},
        {"every paper another", {12, 24, 210}, {}},
        {"sorted by width", {24, 12, 24.2, 12}, {"12 mm wide: 1 3", "24 mm wide: 0 2"}},
        {"rounding is no other width", {62, 61.98, 54}, {"54 mm wide: 2", "62 mm wide: 0 1"}},
        {"near is not the same", {12, 12.5, 12}, {"12 mm wide: 0 2", "12.5 mm wide: 1"}},
        {"a width in inches", {101.6, 101.6, 50.8}, {"50.8 mm wide: 2", "101.6 mm wide: 0 1"}},
    };
    for (const Row &row : rows) {
        std::vector<host::PpdPaper> papers;
        for (const double width : row.widths)
            papers.push_back({"P", QStringLiteral("P"), host::inPoints(QSizeF(width, 50)), std::nullopt});
        QStringList groups;
        for (const dialog::PaperGroup &group : dialog::groupPapers(papers)) {
            QString text = group.title + u':';
            for (const std::size_t index : group.papers)
                text += u' ' + QString::number(index);
            groups.append(text);
        }
        EXPECT_EQ(groups, row.groups) << row.name;
    }
}

TEST(PaperList, TellsTensOfThousandsOfPapersApart)
{
    std::vector<host::PpdPaper> papers;
    for (int i = 0; i < 30'000; ++i) {
        const QByteArray number = QByteArray::number(i);
        papers.push_back(
            {'W' + number, QStringLiteral("Tape of number %1").arg(i / 2), QSizeF(68.0, 170.0), {}});
    }
    dialog::PaperList list(nullptr);
    list.setPapers(papers, false);
    ASSERT_EQ(list.count(), 30'000);
    EXPECT_EQ(list.item(29'999)->text(), QStringLiteral("Tape of number 14999 (W29999)"));
}
