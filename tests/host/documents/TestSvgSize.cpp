// SPDX-License-Identifier: Apache-2.0
#include <host/documents/SvgSize.h>

#include <QXmlStreamAttributes>

#include <gtest/gtest.h>

#include <cmath>

using host::SvgSize;

namespace {

/// The attributes of a root; null stands for an attribute that is missing.
QXmlStreamAttributes svgRoot(const char *width, const char *height, const char *viewBox)
{
    QXmlStreamAttributes attributes;
    const std::pair<const char *, const char *> all[] = {
        {"width", width}, {"height", height}, {"viewBox", viewBox}};
    for (const auto &[name, value] : all) {
        if (value)
            attributes.append(QLatin1String(name), QString::fromUtf8(value));
    }
    return attributes;
}

} // namespace

TEST(SvgSize, ReadsLengthsInEveryUnit)
{
    const std::pair<const char *, double> rows[] = {
        {"96", 96},   {"96px", 96}, {"1in", 96},    {"25.4mm", 96}, {"2.54cm", 96},
        {"72pt", 96}, {"6pc", 96},  {"101.6Q", 96}, {" 96 ", 96},   {"9.6e1", 96},
        {"+96", 96},  {"96.", 96},  {".5", 0.5},    {"0", 0},       {"-4", -4},
    };
    for (const auto &[text, pixels] : rows) {
        const auto size = SvgSize::natural(svgRoot(text, "7", nullptr));
        ASSERT_TRUE(size) << text;
        EXPECT_NEAR(size->width(), pixels, 1e-9) << text;
        EXPECT_EQ(size->height(), 7) << text;
    }
}

TEST(SvgSize, IsAbsentForLengthsThatDependOnOthers)
{
    for (const char *const text : {"", " ", "100%", "2em", "2ex", "auto", "inf", "nan", "-inf", "px", "1 px",
                                   "1PX", "0x10", "1,5", "1 2", "12pxpx"})
        EXPECT_FALSE(SvgSize::natural(svgRoot(text, "7", nullptr))) << text;
    EXPECT_FALSE(SvgSize::natural(svgRoot(nullptr, "7", nullptr)));
    EXPECT_FALSE(SvgSize::natural({}));
    const auto huge = SvgSize::natural(svgRoot("1e999mm", "7", nullptr));
    ASSERT_TRUE(huge);
    EXPECT_TRUE(std::isinf(huge->width())) << "the caller rejects the page";
}

TEST(SvgSize, CompletesOneSideFromTheViewBox)
{
    struct Row {
        const char *width;
        const char *height;
        QSizeF size;
    };
    const Row rows[] = {
        {nullptr, nullptr, {40, 20}}, {"100%", "100%", {40, 20}}, {"80", nullptr, {80, 40}},
        {"80", "50%", {80, 40}},      {nullptr, "80", {160, 80}}, {"10", "10", {10, 10}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(SvgSize::natural(svgRoot(row.width, row.height, "0 0 40 20")), row.size) << &row - rows;
}

TEST(SvgSize, ReadsTheViewBox)
{
    const std::pair<const char *, std::optional<QSizeF>> rows[] = {
        {"0 0 40 20", QSizeF(40, 20)},     {" 0,0 , 40\t20\n", QSizeF(40, 20)},
        {"-5 -5 4e1 2e1", QSizeF(40, 20)}, {"0 0 0 0", QSizeF(0, 0)},
        {"0 0 -1 1", QSizeF(-1, 1)},       {"", std::nullopt},
        {"0 0 40", std::nullopt},          {"0 0 40 20 1", std::nullopt},
        {"a 0 40 20", std::nullopt},       {"0 b 40 20", std::nullopt},
        {"0 0 40px 20", std::nullopt},     {"0 0 40 nan", std::nullopt},
        {"0 0 inf 20", std::nullopt},      {"none", std::nullopt},
    };
    for (const auto &[text, size] : rows)
        EXPECT_EQ(SvgSize::viewBox(svgRoot(nullptr, nullptr, text)), size) << text;
    EXPECT_FALSE(SvgSize::viewBox({}));
}
