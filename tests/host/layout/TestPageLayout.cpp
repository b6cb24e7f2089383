// SPDX-License-Identifier: Apache-2.0
// Where pages lie on a tape of 24 x 60 mm; lengths are in points, from the corner that leaves the printer
// first.
#include <host/layout/PageLayout.h>

#include <gtest/gtest.h>

namespace host {
namespace {

const QSizeF tape(68.0, 170.0);
const QMarginsF margins(8.0, 6.0, 10.0, 4.0);

struct Row {
    const char *what;
    QSizeF page;
    Scaling scaling;
    Turning turning;
    Alignment across;
    Alignment along;
    int quarterTurns;
    double scale;
    QRectF area;
};

constexpr auto start = Alignment::Start;
constexpr auto center = Alignment::Center;
constexpr auto end = Alignment::End;

const Row rows[] = {
    {"the paper itself",
     tape,
     Scaling::ShrinkLarge,
     Turning::Automatic,
     center,
     center,
     0,
     1.0,
     {0, 0, 68, 170}},
    {"a page on its side",
     {170, 68},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     center,
     center,
     1,
     1.0,
     {0, 0, 68, 170}},
    {"half a millimetre too large",
     {69.4, 171.4},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     start,
     start,
     0,
     1.0,
     {0, 0, 69.4, 171.4}},
    {"small, in the middle of the label",
     {30, 50},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     center,
     center,
     0,
     1.0,
     {19, 60, 30, 50}},
    {"small, at the end",
     {30, 50},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     end,
     end,
     0,
     1.0,
     {38, 120, 30, 50}},
    {"large, in the middle of the printable area",
     {100, 200},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     center,
     center,
     0,
     0.5,
     {8, 36, 50, 100}},
    {"large, at the start of the printable area",
     {100, 200},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     start,
     start,
     0,
     0.5,
     {8, 6, 50, 100}},
    {"enlarged", {25, 50}, Scaling::Fit, Turning::Automatic, center, end, 0, 2.0, {8, 66, 50, 100}},
    {"the paper, fitted into its printable area",
     {68, 170},
     Scaling::Fit,
     Turning::Automatic,
     start,
     start,
     0,
     50.0 / 68.0,
     {8, 6, 50, 125}},
    {"filled, cut off at both ends",
     {34, 100},
     Scaling::Fill,
     Turning::Automatic,
     center,
     center,
     0,
     2.0,
     {0, -15, 68, 200}},
    {"large in actual size, cut off at the end",
     {100, 200},
     Scaling::ActualSize,
     Turning::Automatic,
     start,
     start,
     0,
     1.0,
     {0, 0, 100, 200}},
    {"a square page is not turned",
     {50, 50},
     Scaling::ShrinkLarge,
     Turning::Automatic,
     start,
     start,
     0,
     1.0,
     {0, 0, 50, 50}},
    {"upright on request",
     {170, 68},
     Scaling::ActualSize,
     Turning::Upright,
     start,
     start,
     0,
     1.0,
     {0, 0, 170, 68}},
    {"landscape",
     {170, 68},
     Scaling::ShrinkLarge,
     Turning::CounterClockwise,
     center,
     center,
     3,
     1.0,
     {0, 0, 68, 170}},
    {"reverse landscape",
     {170, 68},
     Scaling::ShrinkLarge,
     Turning::Clockwise,
     center,
     center,
     1,
     1.0,
     {0, 0, 68, 170}},
    {"reverse portrait",
     tape,
     Scaling::ShrinkLarge,
     Turning::UpsideDown,
     center,
     center,
     2,
     1.0,
     {0, 0, 68, 170}},
};

PageLayout layoutFor(const Row &row)
{
    PageLayout layout(tape, margins);
    layout.scaling = row.scaling;
    layout.turning = row.turning;
    layout.across = row.across;
    layout.along = row.along;
    return layout;
}

TEST(PageLayout, PlacesPages)
{
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        const PagePlacement placement = layoutFor(row).place(row.page);
        EXPECT_EQ(placement.quarterTurns, row.quarterTurns);
        EXPECT_NEAR(placement.scale, row.scale, 1e-9);
        EXPECT_NEAR(placement.area.left(), row.area.left(), 1e-9);
        EXPECT_NEAR(placement.area.top(), row.area.top(), 1e-9);
        EXPECT_NEAR(placement.area.width(), row.area.width(), 1e-9);
        EXPECT_NEAR(placement.area.height(), row.area.height(), 1e-9);
    }
}

TEST(PageLayout, IsTheSameAfterTheCommandLine)
{
    for (const Row &row : rows) {
        const PageLayout layout = layoutFor(row);
        EXPECT_EQ(PageLayout::fromArguments(layout.arguments()), layout) << row.what;
    }
    const PageLayout third({1.0 / 3.0, 1e-3 / 7.0});
    EXPECT_EQ(PageLayout::fromArguments(third.arguments()), third);
}

TEST(PageLayout, RejectsOtherArguments)
{
    const QStringList good = PageLayout(tape, margins).arguments();
    ASSERT_TRUE(PageLayout::fromArguments(good));
    EXPECT_FALSE(PageLayout::fromArguments({}));
    EXPECT_FALSE(PageLayout::fromArguments(good + QStringList{QStringLiteral("0")}));
    for (qsizetype index = 0; index < good.size(); ++index) {
        for (const char *const wrong : {"", "x", "nan", "inf", "1e999", "9x"}) {
            QStringList bad = good;
            bad[index] = QLatin1String(wrong);
            EXPECT_FALSE(PageLayout::fromArguments(bad)) << index << ' ' << wrong;
        }
    }
    for (const qsizetype choice : {6, 7, 8, 9}) {
        for (const char *const wrong : {"-1", "5"}) {
            QStringList bad = good;
            bad[choice] = QLatin1String(wrong);
            EXPECT_FALSE(PageLayout::fromArguments(bad)) << choice << ' ' << wrong;
        }
    }
    QStringList empty = good;
    empty[0] = QStringLiteral("0");
    EXPECT_FALSE(PageLayout::fromArguments(empty));
}

TEST(PageLayout, IgnoresMarginsThatLeaveNothing)
{
    EXPECT_EQ(PageLayout(tape, {40, 0, 40, 0}).printableArea(), QRectF(QPointF(), tape));
    EXPECT_EQ(PageLayout(tape, margins).printableArea(), QRectF(8, 6, 50, 160));
}

TEST(PageLayout, SendsPagesOfThePaperAsTheyAre)
{
    const PageLayout layout(tape, margins);
    const auto isUnchanged = [&](QSizeF page) { return layout.isUnchanged(page, layout.place(page)); };
    EXPECT_TRUE(isUnchanged(tape));
    EXPECT_TRUE(isUnchanged(tape + QSizeF(0.4, -0.4)));
    EXPECT_FALSE(isUnchanged(tape + QSizeF(0.6, 0.0)));
    EXPECT_FALSE(isUnchanged(tape.transposed()));
    EXPECT_FALSE(isUnchanged(tape / 2.0));
    PageLayout turned = layout;
    turned.turning = Turning::UpsideDown;
    EXPECT_FALSE(turned.isUnchanged(tape, turned.place(tape)));
    PageLayout fitted = layout;
    fitted.scaling = Scaling::Fit;
    EXPECT_FALSE(fitted.isUnchanged(tape, fitted.place(tape)));
}

} // namespace
} // namespace host
