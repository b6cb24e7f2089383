// SPDX-License-Identifier: Apache-2.0

#include <host/strip/StripPainter.h>
#include <tests/samples/SampleCuts.h>
#include <tests/samples/SamplePdf.h>

#include <gtest/gtest.h>

using host::CutPlan;

using host::operator""_mm;

namespace {

constexpr double pixelsPerMillimetre = 10.0;

/// A strip of labels 60 mm by 24 mm, each with a black box from 10 mm to 20 mm along the tape and from 2 mm
/// to 8 mm across it, drawn with a unit of 1 mm.
class StripPainterTest : public testing::Test {
protected:
    void SetUp() override
    {
        const SamplePage page{QSizeF(60, 24) * mm, [](QPainter &painter) {
                                  painter.fillRect(QRectF(10 * mm, 2 * mm, 10 * mm, 6 * mm), Qt::black);
                              }};
        auto opened = host::LabelDocument::open(writePdf(sandbox, QStringLiteral("box.pdf"), {page}));
        ASSERT_TRUE(opened) << opened.error().message.toStdString();
        document = std::move(opened).value();
        renderer.emplace(*document, QSizeF(24, 60) * mm);
    }

    void draw(const SampleCuts &cuts, int labels, std::optional<host::Millimetres> margin = std::nullopt)
    {
        const std::vector<int> pages(static_cast<std::size_t>(labels), 0);
        const std::vector<host::LabelExtent> extents{renderer->extent(0, host::MeasureBlank::Yes)};
        plan = CutPlan::make(effectsOn(pages.size(), cuts), pages, extents, margin);
        layout.emplace(plan, 24.0_mm, 1.0_mm);
        const QRectF bounds = layout->bounds();
        image = QImage((bounds.size() * pixelsPerMillimetre).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
        painter.translate(-bounds.topLeft());
        host::StripPainter(*layout, *renderer, host::StripColors::forPaper(), pixelsPerMillimetre)
            .paint(painter, bounds.left(), bounds.right());
    }

    /// The colour at a place of the layout.
    QColor at(double x, double y) const
    {
        const QPointF place = (QPointF(x, y) - layout->bounds().topLeft()) * pixelsPerMillimetre;
        return image.pixelColor(place.toPoint());
    }

    bool isDark(double x, double y) const { return at(x, y).lightness() < 110; }
    bool isWhite(double x, double y) const { return at(x, y).lightness() > 245; }

    Sandbox sandbox;
    std::unique_ptr<host::LabelDocument> document;
    std::optional<host::LabelRenderer> renderer;
    CutPlan plan;
    std::optional<host::StripLayout> layout;
    QImage image;
};

} // namespace

TEST_F(StripPainterTest, LabelsLieWhereTheLayoutSays)
{
    draw({.automaticCut = true}, 2, 3.0_mm);
    for (std::size_t label = 0; label < 2; ++label) {
        const double left = layout->label(label).left();
        EXPECT_TRUE(isDark(left + 15.0, 5.0)) << label;
        EXPECT_TRUE(isWhite(left + 5.0, 5.0)) << label;
        EXPECT_TRUE(isWhite(left + 45.0, 5.0)) << label;
        EXPECT_TRUE(isWhite(left + 15.0, 15.0)) << label;
    }
    EXPECT_DOUBLE_EQ(layout->label(0).left(), 3.0);
    EXPECT_DOUBLE_EQ(layout->label(1).left(), 3.0 + 60.0 + 7.0);
}

TEST_F(StripPainterTest, MirroredLabelsAreMirroredAcrossTheTape)
{
    draw({.mirror = true}, 1);
    EXPECT_TRUE(isDark(15.0, 19.0));
    EXPECT_TRUE(isWhite(15.0, 5.0));
    EXPECT_TRUE(isWhite(45.0, 19.0));
}

TEST_F(StripPainterTest, WithoutBlankTheLabelBeginsAndEndsWithItsPrint)
{
    for (const bool mirror : {false, true}) {
        draw({.mirror = mirror, .removeBlank = true}, 1);
        EXPECT_NEAR(plan.labels()[0].length.number(), 10.0, 0.3);
        const double across = mirror ? 19.0 : 5.0;
        EXPECT_TRUE(isDark(0.8, across)) << mirror;
        EXPECT_TRUE(isDark(9.2, across)) << mirror;
    }
}

TEST_F(StripPainterTest, AFullCutPartsThePieces)
{
    draw({.automaticCut = true}, 2);
    const double gap = layout->boundaryAfter(0);
    EXPECT_TRUE(isWhite(gap - 2.0, 12.0));
    EXPECT_TRUE(isWhite(gap - 2.0, -0.3)) << "there is no backing in the gap";
    EXPECT_FALSE(isWhite(gap - 10.0, -0.3)) << "there is backing under a label";
}

TEST_F(StripPainterTest, AHalfCutShowsTheBackingThatHolds)
{
    draw({.cutAtEnd = true, .halfCut = true}, 2);
    const double cut = layout->boundaryAfter(0);
    EXPECT_DOUBLE_EQ(layout->label(1).left(), cut);
    EXPECT_FALSE(isWhite(cut, 12.0));
    EXPECT_FALSE(isWhite(cut, 24.3)) << "the backing goes on";
}

TEST_F(StripPainterTest, ACutMarkHasDarkEndsAtBothEdges)
{
    for (const bool mark : {false, true}) {
        draw({.cutAtEnd = true, .cutMark = mark}, 2);
        const double boundary = layout->boundaryAfter(0);
        EXPECT_EQ(isDark(boundary, 0.8), mark);
        EXPECT_EQ(isDark(boundary, 23.2), mark);
    }
}

TEST_F(StripPainterTest, TheEndIsCutHeldOrTornAsThePlanSays)
{
    const double end = 60.0;
    draw({.cutAtEnd = true}, 1);
    EXPECT_TRUE(isWhite(end + 2.0, -0.3));
    EXPECT_TRUE(isWhite(end + 20.0, 12.0));

    draw({}, 1);
    EXPECT_FALSE(isWhite(end + 2.0, -0.3)) << "the tape goes on";
    EXPECT_TRUE(isWhite(end + 20.0, 12.0)) << "and is torn off";

    draw({.chainPrint = true}, 1);
    EXPECT_FALSE(isWhite(end + 20.0, 12.0)) << "the printer's housing";
    EXPECT_FALSE(isWhite(end + 20.0, -3.0)) << "which is wider than the tape";
}

TEST_F(StripPainterTest, ALeadingMarginIsHatched)
{
    draw({}, 1, 4.0_mm);
    int dark = 0;
    for (int tenth = 5; tenth < 35; ++tenth)
        dark += isWhite(tenth / 10.0, 12.0) ? 0 : 1;
    EXPECT_GT(dark, 0);
    EXPECT_LT(dark, 30);
}

TEST_F(StripPainterTest, OnlyWhatIsInSightIsDrawn)
{
    draw({.automaticCut = true}, 100);
    EXPECT_EQ(layout->labelsBetween(layout->label(40).left() + 1.0, layout->label(41).left() + 1.0),
              std::pair(std::size_t{40}, std::size_t{42}));
    EXPECT_EQ(layout->labelsBetween(-50.0, -10.0), std::pair(std::size_t{0}, std::size_t{0}));
    EXPECT_EQ(layout->labelsBetween(1e9, 2e9), std::pair(std::size_t{99}, std::size_t{100}));
}
