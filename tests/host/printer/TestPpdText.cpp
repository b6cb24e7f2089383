// SPDX-License-Identifier: Apache-2.0
#include <host/printer/PpdText.h>

#include <gtest/gtest.h>

#include <string>

using host::PpdText;

namespace {

PpdText scanned(std::string_view text)
{
    PpdText scan;
    scan.add(text);
    scan.finish();
    return scan;
}

/// What the translation of the only paper is, "-" if there is none.
std::string paperText(const PpdText &scan)
{
    return scan.translations().text(QStringLiteral("de"), "PageSize", "W24").value_or("-").toStdString();
}

} // namespace

TEST(PpdText, CountsLinesOfEveryKind)
{
    const std::pair<std::string_view, int> rows[] = {
        {"", 1},       {"*A: 1", 1},      {"\n", 2},   {"\r", 2},          {"\r\n", 2},
        {"\n\r", 3},   {"\r\r\n", 3},     {"\n\n", 3}, {"a\nb\rc\r\n", 4}, {"*A: \"1\n2\n3\"\n", 4},
        {"\r\n\n", 3}, {"\r\n\r\n\r", 4},
    };
    for (const auto &[text, line] : rows)
        EXPECT_EQ(scanned(text).line(), line) << testing::PrintToString(text);
}

TEST(PpdText, ReportsATextThatEndsInsideAValue)
{
    const std::pair<std::string_view, bool> rows[] = {
        {"", false},
        {"*A: \"", true},
        {"*A: \"1", true},
        {"*A: \"1\"", false},
        {"*A: \"1\"\"", true},
        {"*A: \"1\n2\n", true},
        {"*A: \"1\n2\"\n", false},
        // Quotation marks before a colon and in comments begin no value.
        {"*A \"1", false},
        {"*% A: \"1\n", false},
        {"*%: \"", false},
        {"*A: 1 \"2\n*B: \"3\"", true},
    };
    for (const auto &[text, isInside] : rows)
        EXPECT_EQ(scanned(text).isInsideValue(), isInside) << testing::PrintToString(text);
}

TEST(PpdText, AddsTheStatementOfTheLastLineAtTheEnd)
{
    PpdText scan;
    scan.add("*de.PageSize W24/Band: \"\"");
    EXPECT_EQ(paperText(scan), "-");
    scan.finish();
    EXPECT_EQ(paperText(scan), "Band");
    EXPECT_EQ(paperText(scanned("*de.PageSize W24/Band: \"")), "-") << "the value is incomplete";
}

TEST(PpdText, ReadsNoStatementInsideAValue)
{
    EXPECT_EQ(paperText(scanned("*A: \"\n*de.PageSize W24/Inside: \"\"\n\"\n")), "-");
    EXPECT_EQ(paperText(scanned("*A: \"\n\"\n*de.PageSize W24/Behind: \"\"\n")), "Behind");
    EXPECT_EQ(paperText(scanned("*% *de.PageSize W24/Comment: \"\"\n")), "-");
    EXPECT_EQ(paperText(scanned("*de.PageSize W24/No colon\n")), "-");
}

TEST(PpdText, IsTheSameInPiecesOfEverySize)
{
    const std::string_view text =
        "*PPD-Adobe: \"4.3\"\r\n*de.PageSize W24/Band: \"\"\r\n"
        "*PaperDimension W24: \"68 170\"\r*ImageableArea W24: \"\n1 2\n60 160\"\n*A: \"1";
    const PpdText whole = scanned(text);
    for (std::size_t size = 1; size < text.size(); ++size) {
        PpdText pieces;
        for (std::size_t at = 0; at < text.size(); at += size)
            pieces.add(text.substr(at, size));
        pieces.finish();
        EXPECT_EQ(pieces.line(), whole.line()) << size;
        EXPECT_EQ(pieces.isInsideValue(), whole.isInsideValue()) << size;
        EXPECT_EQ(paperText(pieces), "Band") << size;
        EXPECT_EQ(pieces.paperSizes().size("W24"), QSizeF(68, 170)) << size;
        EXPECT_EQ(pieces.paperSizes().margins("W24"), whole.paperSizes().margins("W24")) << size;
    }
}

TEST(PpdText, ReadsHeadsAndValuesUpToTheirMaximum)
{
    constexpr std::size_t maxLength = 255;
    const std::string start = "*de.PageSize W24/";
    for (const std::size_t length : {maxLength - 1, maxLength, maxLength + 1, 100 * maxLength}) {
        const std::string head = start + std::string(length - start.size(), 'x');
        const std::size_t read = std::min(length, maxLength) - start.size();
        EXPECT_EQ(paperText(scanned(head + ": \"\"\n")), std::string(read, 'x')) << length;
    }
    for (const auto &[blanks, isRead] : {std::pair(maxLength - 6, true), std::pair(maxLength, false)}) {
        const PpdText scan = scanned("*PaperDimension W24:\"" + std::string(blanks, ' ') + "68 170\"\n");
        EXPECT_EQ(scan.paperSizes().size("W24").has_value(), isRead) << blanks;
    }
}

TEST(PpdText, AcceptsEveryByte)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const PpdText scan = scanned(bytes + "\"\n*de.PageSize W24/Band: \"\"\n" + bytes);
    EXPECT_EQ(scan.line(), 7);
    EXPECT_FALSE(scan.counts().excess());
}
