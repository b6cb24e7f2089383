// SPDX-License-Identifier: Apache-2.0
#include <host/printer/PpdPaperSizes.h>
#include <tests/samples/SamplePpd.h>

#include <gtest/gtest.h>

using host::PpdFile;
using host::PpdPaperSizes;

TEST(PpdPaperSizes, PapersOfUnusableSizeAreLeftOut)
{
    const std::pair<QByteArray, bool> rows[] = {
        {"0 100", false},        {"100 0", false},        {"-68 170", false},     {"68 -170", false},
        {"nan 170", false},      {"68 nan", false},       {"inf 170", false},     {"68 -inf", false},
        {"1e30 1e30", false},    {"68 1e300", false},     {"68 283466", false},   {"0.5 0.5", true},
        {"68 283464", true},     {"283464 68", true},     {"283464 14173", true}, {"14173 283464", true},
        {"14174 283464", false}, {"283464 14174", false},
    };
    const Sandbox sandbox;
    for (const auto &[size, isUsable] : rows) {
        SCOPED_TRACE(size.constData());
        const QByteArray text = tapePpd().replace("*PaperDimension W12H60: \"34.016 170.079\"",
                                                  "*PaperDimension W12H60: \"" + size + "\"");
        auto ppd = PpdFile::open(sandbox.write(QStringLiteral("size.ppd"), text));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        EXPECT_EQ(ppd.value().papers().size(), isUsable ? 4U : 3U);
        EXPECT_EQ(ppd.value().paper("W12H60").has_value(), isUsable);
        EXPECT_EQ(ppd.value().unusableSize("W12H60").has_value(), !isUsable);
        EXPECT_FALSE(ppd.value().unusableSize("W24H60"));
        EXPECT_FALSE(ppd.value().unusableSize("Absent"));
        ppd.value().mark(QStringLiteral("PageSize"), QStringLiteral("W12H60"));
        EXPECT_EQ(ppd.value().markedPaper().has_value(), isUsable);
    }
}

TEST(PpdPaperSizes, MarginsThatAreNoNumbersAreLeftOut)
{
    const Sandbox sandbox;
    const QByteArray area = "5.669 2.835 62.362 164.409";
    for (const char *const wrong :
         {"nan 0 60 160", "0 nan 60 160", "0 0 nan 160", "0 0 60 inf", "-inf 0 60 160"}) {
        const QByteArray text = tapePpd().replace(area, wrong);
        const auto ppd = PpdFile::open(sandbox.write(QStringLiteral("area.ppd"), text));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        ASSERT_TRUE(ppd.value().paper("W24H60")) << wrong;
        EXPECT_FALSE(ppd.value().paper("W24H60")->margins) << wrong;
    }
}

TEST(PpdPaperSizes, FreeSizesAreWithinWhatPrintersCanPrint)
{
    const QByteArray limits = "Height: 2 points 28 2835";
    const std::tuple<const char *, const char *, bool> rows[] = {
        {"Height: 2 points 0 1e30", "Custom.24x99999mm", true},
        {"Height: 2 points 0 1e30", "Custom.24x1mm", true},
        {"Height: 2 points 0 1e30", "Custom.24x100001mm", false},
        {"Height: 2 points 0 1e30", "Custom.24x0mm", false},
        {"Height: 2 points -100 1e30", "Custom.24x-1mm", false},
        {"Height: 2 points nan nan", "Custom.24x60mm", false},
        {"Height: 2 points 100 50", "Custom.24x30mm", false},
    };
    const Sandbox sandbox;
    for (const auto &[height, name, isPaper] : rows) {
        SCOPED_TRACE(name);
        const auto ppd =
            PpdFile::open(sandbox.write(QStringLiteral("free.ppd"), tapePpd().replace(limits, height)));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        EXPECT_EQ(ppd.value().paper(name).has_value(), isPaper);
        if (const auto given = ppd.value().customLimits()) {
            EXPECT_GE(given->smallest.height(), 1.0);
            EXPECT_LE(given->largest.height(), 283465.0);
        }
    }
    const auto ppd = PpdFile::open(sandbox.write(QStringLiteral("tape.ppd"), tapePpd()));
    EXPECT_TRUE(ppd.value().unusableSize("Custom.24x0mm"));
    EXPECT_FALSE(ppd.value().unusableSize("Custom.24x5mm")) << "is too short for this printer only";
    EXPECT_FALSE(ppd.value().unusableSize("Custom.rubbish"));
}

TEST(PpdPaperSizes, ReadsStatementsOfExactNames)
{
    const std::tuple<const char *, const char *, std::optional<QSizeF>> rows[] = {
        {"*PaperDimension W24", "68 170", QSizeF(68, 170)},
        {"*PaperDimension W24/24 mm", "68 170", QSizeF(68, 170)},
        {"*PaperDimension  \tW24 /24 mm", " 68\t170 points", QSizeF(68, 170)},
        {"*PaperDimension W24", "6.8e1 +170", QSizeF(68, 170)},
        {"*PaperDimension W24", "68", std::nullopt},
        {"*PaperDimension W24", "", std::nullopt},
        {"*PaperDimension W24", "x 68 170", std::nullopt},
        {"*PaperDimension W24", "68,170", std::nullopt},
        {"*PaperDimension w24", "68 170", std::nullopt},
        {"*PaperDimension W24 W25", "68 170", std::nullopt},
        {"*PaperDimension", "68 170", std::nullopt},
        {"*PaperDimensions W24", "68 170", std::nullopt},
        {"*paperdimension W24", "68 170", std::nullopt},
        {"PaperDimension W24", "68 170", std::nullopt},
        {"*ImageableArea W24", "0 0 68 170", std::nullopt},
        {"", "68 170", std::nullopt},
    };
    for (const auto &[statement, value, size] : rows) {
        PpdPaperSizes sizes;
        sizes.addStatement(statement, value);
        EXPECT_EQ(sizes.size("W24"), size) << statement << ": " << value;
    }
}

TEST(PpdPaperSizes, AnAreaWithoutWidthOrHeightStatesNoMargins)
{
    const std::pair<const char *, std::optional<QMarginsF>> rows[] = {
        {"1 2 58 97", QMarginsF(1, 3, 2, 2)},
        {"0 0 60 100", QMarginsF(0, 0, 0, 0)},
        {"-1 -2 61 102", QMarginsF(-1, -2, -1, -2)},
        {"30 2 30 97", std::nullopt},
        {"31 2 30 97", std::nullopt},
        {"1 50 58 50", std::nullopt},
        {"1 51 58 50", std::nullopt},
        {"1 2 58", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto &[area, margins] : rows) {
        PpdPaperSizes sizes;
        sizes.addStatement("*ImageableArea W24", area);
        sizes.addStatement("*ImageableAreas W24", "7 7 8 8");
        EXPECT_FALSE(sizes.margins("W24")) << "of a paper without a size";
        sizes.addStatement("*PaperDimension W24", "60 100");
        EXPECT_EQ(sizes.margins("W24"), margins) << area;
    }
}
