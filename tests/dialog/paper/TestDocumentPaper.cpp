// SPDX-License-Identifier: Apache-2.0
// Which paper is for a document's pages.
#include <dialog/paper/DocumentPaper.h>
#include <tests/samples/SamplePdf.h>

#include <gtest/gtest.h>

TEST(DocumentPaper, OfNearTwinsIsTheExactOne)
{
    const std::vector<host::PpdPaper> papers = {
        {"Near", QStringLiteral("52 x 75"), QSizeF(52, 75) * mm, std::nullopt},
        {"Exact", QStringLiteral("52.15 x 75"), QSizeF(52.15, 75) * mm, std::nullopt},
        {"Turned", QStringLiteral("75 x 52.15"), QSizeF(75, 52.15) * mm, std::nullopt},
    };
    struct Row {
        QSizeF page; ///< in points
        const char *fixed;
        const char *withFreeSizes;
    };
    const Row rows[] = {
        {QSizeF(52.15, 75) * mm, "Exact", "Exact"},
        {QSizeF(52.155, 75.005) * mm, "Exact", "Exact"},
        {QSizeF(75, 52.15) * mm, "Turned", "Turned"},
        {QSizeF(52, 75) * mm, "Near", "Near"},
        {QSizeF(75, 52) * mm, "Near", "Near"}, // turned, and exact
        {QSizeF(52.06, 75) * mm, "Near", "Free"},
        {QSizeF(52.1, 75) * mm, "Exact", "Free"},
        {QSizeF(147, 213), "Near", "Near"}, // whole points
        {QSizeF(148, 213), "Exact", "Exact"},
        {QSizeF(52.5, 75) * mm, nullptr, "Free"},
        {QSizeF(), nullptr, nullptr},
    };
    const auto none = [](const QSizeF &) { return std::optional<host::PpdPaper>(); };
    const auto any = [](const QSizeF &size) {
        return std::optional(host::PpdPaper{"Free", QString(), size, std::nullopt});
    };
    for (const Row &row : rows) {
        const auto fixed = dialog::paperForPage(papers, row.page, none);
        EXPECT_EQ(fixed ? fixed->name : QByteArray(), QByteArray(row.fixed)) << row.page.width() / mm;
        const auto free = dialog::paperForPage(papers, row.page, any);
        EXPECT_EQ(free ? free->name : QByteArray(), QByteArray(row.withFreeSizes)) << row.page.width() / mm;
    }
}
