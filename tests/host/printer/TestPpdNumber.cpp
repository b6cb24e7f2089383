// SPDX-License-Identifier: Apache-2.0
#include <host/printer/PpdNumber.h>

#include <gtest/gtest.h>

#include <limits>

using host::customPaperName;
using host::customPaperSize;
using host::parseLength;
using host::Points;
using host::ppdLength;
using host::ppdNumber;

TEST(PpdNumber, ReadsLengthsInEveryUnit)
{
    const std::pair<const char *, double> rows[] = {
        {"0", 0.0},       {"12", 12.0},     {"12.5", 12.5},    {"-3", -3.0},  {".5", 0.5},
        {"5.", 5.0},      {"007", 7.0},     {"12pt", 12.0},    {"1in", 72.0}, {"2ft", 1728.0},
        {"2.54cm", 72.0}, {"25.4mm", 72.0}, {"0.0254m", 72.0}, {"-0", 0.0},
    };
    for (const auto &[text, points] : rows) {
        const auto length = parseLength(text);
        ASSERT_TRUE(length) << text;
        EXPECT_NEAR(length->number(), points, 1e-9) << text;
    }
}

TEST(PpdNumber, RejectsWhatIsNoLength)
{
    for (const char *const text :
         {"",    " ",    "mm",    "-",   ".",   "-.",   "1 mm", " 1mm",    "1mm ", "+1",
          "1e3", "1E3",  "0x10",  "1,5", "inf", "nan",  "-inf", "infmm",   "1km",  "1MM",
          "1Pt", "1in2", "1.2.3", "1-2", "--1", "1mmm", "1\n",  "\xD9\xA1"})
        EXPECT_FALSE(parseLength(text)) << text;
    EXPECT_FALSE(parseLength(QByteArray(400, '9'))) << "no number is as large";
    EXPECT_FALSE(parseLength(QByteArray("1\0", 2)));
    EXPECT_FALSE(parseLength(QByteArray("1\0mm", 4)));
}

TEST(PpdNumber, WritesFourDecimalsWithoutTrailingZeros)
{
    const std::pair<double, const char *> rows[] = {
        {0.0, "0"},       {-0.0, "0"},        {-0.00001, "0"},     {12.0, "12"},
        {12.5, "12.5"},   {0.1 + 0.2, "0.3"}, {1.23456, "1.2346"}, {1.00004, "1"},
        {-7.25, "-7.25"}, {100.0, "100"},     {1e9, "1000000000"},
    };
    for (const auto &[number, text] : rows)
        EXPECT_EQ(ppdNumber(number), text) << number;
    EXPECT_EQ(ppdLength(Points(72.0)), "25.4mm");
}

TEST(PpdNumber, ReadsSizesWithOneUnitForBothSides)
{
    const std::pair<const char *, QSizeF> rows[] = {
        {"Custom.72x144", {72, 144}},      {"Custom.1x2in", {72, 144}}, {"Custom.2.54x5.08cm", {72, 144}},
        {"Custom.25.4x50.8mm", {72, 144}}, {"Custom.0x0", {0, 0}},      {"Custom.-1x2", {-1, 2}},
        {"Custom.1x1ft", {864, 864}},
    };
    for (const auto &[name, size] : rows) {
        const auto found = customPaperSize(name);
        ASSERT_TRUE(found) << name;
        EXPECT_NEAR(found->width(), size.width(), 1e-9) << name;
        EXPECT_NEAR(found->height(), size.height(), 1e-9) << name;
    }
    for (const char *const name :
         {"", "Custom", "Custom.", "Custom.x", "Custom.1", "Custom.1x", "Custom.x1", "Custom.1x2x3",
          "custom.1x2", "Custom.1X2", "Custom.1inx2in", "Custom.1x2furlong", "Custom.1x 2", "Custom.1x2 mm",
          "W24x60", "Custom.infx1", "Custom.1xnan", "Custom.1e1x1"})
        EXPECT_FALSE(customPaperSize(name)) << name;
}

TEST(PpdNumber, NamesOfSizesAreReadAsTheSame)
{
    for (const QSizeF size :
         {QSizeF(68.03, 170.08), QSizeF(1, 1), QSizeF(14173, 283464), QSizeF(0.5, 1234.5678)}) {
        const auto found = customPaperSize(customPaperName(size));
        ASSERT_TRUE(found) << customPaperName(size).constData();
        // Four decimals of a millimetre.
        EXPECT_NEAR(found->width(), size.width(), 0.0003);
        EXPECT_NEAR(found->height(), size.height(), 0.0003);
    }
    EXPECT_EQ(customPaperName({72, 144}), "Custom.25.4x50.8mm");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(customPaperSize(customPaperName({infinity, infinity}))) << "infinity is no size";
}
