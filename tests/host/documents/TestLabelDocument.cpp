// SPDX-License-Identifier: Apache-2.0

#include <host/documents/LabelDocument.h>
#include <host/labels/LabelRenderer.h>
#include <tests/samples/SamplePdf.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

using host::DocumentErrorKind;
using host::LabelDocument;
using host::LabelRenderer;
using host::MeasureBlank;

namespace {

struct BadDocument {
    const char *name;
    QByteArray content;
    DocumentErrorKind kind;
};

std::unique_ptr<LabelDocument> openPages(const Sandbox &sandbox, const std::vector<SamplePage> &pages)
{
    auto document = LabelDocument::open(writePdf(sandbox, QStringLiteral("pages.pdf"), pages));
    if (!document)
        qFatal("%s", qPrintable(document.error().message));
    return std::move(document).value();
}

/// A page with a black rectangle, all in millimetres.
SamplePage pageWithBox(QSizeF size, QRectF box)
{
    return {size * mm, [box](QPainter &painter) {
                painter.fillRect(QRectF(box.topLeft() * mm, box.size() * mm), Qt::black);
            }};
}

bool isBlack(const QImage &image, double x, double y)
{
    return qGray(image.pixel(static_cast<int>(x), static_cast<int>(y))) < 100;
}

} // namespace

TEST(LabelDocument, RefusesWithTheReason)
{
    const BadDocument rows[] = {
        {"empty", "", DocumentErrorKind::Empty},
        {"text", "Dear printer, please print.", DocumentErrorKind::UnknownKind},
        {"only the head", "%PDF-1.4\n", DocumentErrorKind::Damaged},
        {"no pages", pdfWithPageBoxes({}), DocumentErrorKind::Empty},
        {"encrypted", pdfWithPageBoxes({"[0 0 100 100]"}, "secret"), DocumentErrorKind::Encrypted},
        {"a sliver", pdfWithPageBoxes({"[0 0 100 100]", "[0 0 100 0.5]"}), DocumentErrorKind::BadPage},
        {"ten metres", pdfWithPageBoxes({"[0 0 100 28346]"}), DocumentErrorKind::BadPage},
    };
    const Sandbox sandbox;
    for (const BadDocument &row : rows) {
        const QString path = sandbox.write(QString::fromUtf8(row.name), row.content);
        const auto document = LabelDocument::open(path);
        ASSERT_FALSE(document) << row.name;
        EXPECT_EQ(document.error().kind, row.kind)
            << row.name << ": " << document.error().message.toStdString();
        EXPECT_TRUE(document.error().message.contains(path)) << document.error().message.toStdString();
    }
    EXPECT_TRUE(
        LabelDocument::open(sandbox.write(QStringLiteral("good"), pdfWithPageBoxes({"[0 0 100 100]"}))));
}

TEST(LabelDocument, RefusesWhatIsNoReadableFile)
{
    const Sandbox sandbox;
    const auto missing = LabelDocument::open(sandbox.path(QStringLiteral("absent.pdf")));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().kind, DocumentErrorKind::Missing);
    const auto folder = LabelDocument::open(sandbox.path(QStringLiteral(".")));
    ASSERT_FALSE(folder);
    EXPECT_EQ(folder.error().kind, DocumentErrorKind::NotAFile);
    const QString pipe = sandbox.path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const auto fromPipe = LabelDocument::open(pipe);
    ASSERT_FALSE(fromPipe);
    EXPECT_EQ(fromPipe.error().kind, DocumentErrorKind::NotAFile);
}

TEST(LabelDocument, NamesThePageThatIsWrong)
{
    const Sandbox sandbox;
    const QByteArray pdf = pdfWithPageBoxes({"[0 0 100 100]", "[0 0 100 20000]", "[0 0 50 50]"});
    const auto document = LabelDocument::open(sandbox.write(QStringLiteral("second.pdf"), pdf));
    ASSERT_FALSE(document);
    EXPECT_TRUE(document.error().message.contains(QStringLiteral("page 2 ")))
        << document.error().message.toStdString();
}

TEST(LabelRenderer, LaysAnUprightPageWithItsTopFirst)
{
    const Sandbox sandbox;
    // Black in the top left corner of a label 24 mm wide and 60 mm long.
    const auto document = openPages(sandbox, {pageWithBox({24, 60}, {0, 0, 6, 6})});
    const LabelRenderer renderer(*document, QSizeF(24, 60) * mm);
    EXPECT_NEAR(renderer.labelSize().width(), 60.0, 1e-6);
    EXPECT_NEAR(renderer.labelSize().height(), 24.0, 1e-6);
    const QImage image = renderer.render(0, 4.0);
    EXPECT_EQ(image.size(), QSize(240, 96));
    // The page's top is on the left, its left edge at the bottom.
    EXPECT_TRUE(isBlack(image, 10, 86));
    EXPECT_FALSE(isBlack(image, 10, 10));
    EXPECT_FALSE(isBlack(image, 230, 86));
}

TEST(LabelRenderer, TurnsALyingPageWithItsLeftEdgeFirst)
{
    const Sandbox sandbox;
    const auto document = openPages(sandbox, {pageWithBox({60, 24}, {0, 0, 6, 6})});
    const LabelRenderer renderer(*document, QSizeF(24, 60) * mm);
    const QImage image = renderer.render(0, 4.0);
    EXPECT_EQ(image.size(), QSize(240, 96));
    EXPECT_TRUE(isBlack(image, 10, 10));
    EXPECT_FALSE(isBlack(image, 10, 86));
    EXPECT_FALSE(renderer.shrinks(0));
}

TEST(LabelRenderer, ShrinksWhatIsTooLargeAndCentresTheRest)
{
    const Sandbox sandbox;
    const auto document =
        openPages(sandbox, {pageWithBox({48, 120}, {0, 0, 48, 120}), pageWithBox({12, 30}, {0, 0, 12, 30}),
                            pageWithBox({24.3, 60.3}, {0, 0, 24.3, 60.3})});
    const LabelRenderer renderer(*document, QSizeF(24, 60) * mm);
    EXPECT_TRUE(renderer.shrinks(0));
    EXPECT_TRUE(isBlack(renderer.render(0, 4.0), 3, 48));
    EXPECT_TRUE(isBlack(renderer.render(0, 4.0), 236, 48));
    EXPECT_FALSE(renderer.shrinks(1));
    const QImage small = renderer.render(1, 4.0);
    EXPECT_FALSE(isBlack(small, 56, 48));
    EXPECT_TRUE(isBlack(small, 64, 48));
    EXPECT_TRUE(isBlack(small, 176, 48));
    EXPECT_FALSE(isBlack(small, 184, 48));
    EXPECT_FALSE(renderer.shrinks(2)) << "half a millimetre is rounding";
}

TEST(LabelRenderer, DrawsFaintWhatIsNotPrinted)
{
    const Sandbox sandbox;
    const auto document = openPages(sandbox, {pageWithBox({24, 60}, {0, 0, 24, 60})});
    const host::PageLayout layout(QSizeF(24, 60) * mm, QMarginsF(2, 4, 6, 8) * mm);
    const QImage image = LabelRenderer(*document, layout).render(0, 4.0);
    // The left edge of the label is at the bottom, its top on the left.
    const QRect printable(16, 24, 192, 64);
    for (const QPoint &inside : {printable.topLeft(), printable.bottomRight()})
        EXPECT_TRUE(isBlack(image, inside.x(), inside.y())) << inside.x();
    for (const QPoint &outside : {QPoint(14, 50), QPoint(210, 50), QPoint(100, 21), QPoint(100, 90)}) {
        EXPECT_FALSE(isBlack(image, outside.x(), outside.y())) << outside.x();
        EXPECT_NE(image.pixelColor(outside), QColor(Qt::white)) << outside.x();
    }
}

TEST(LabelRenderer, WhatIsNotPrintedIsBlank)
{
    const Sandbox sandbox;
    const auto document =
        openPages(sandbox, {pageWithBox({24, 60}, {0, 0, 24, 60}), pageWithBox({60, 24}, {0, 0, 60, 24}),
                            pageWithBox({24, 60}, {0, 0, 24, 3})});
    const host::PageLayout layout(QSizeF(24, 60) * mm, QMarginsF(2, 4, 6, 8) * mm);
    const LabelRenderer renderer(*document, layout);
    for (const int page : {0, 1}) {
        const host::LabelExtent extent = renderer.extent(page, MeasureBlank::Yes);
        EXPECT_NEAR(extent.leadingBlank.number(), 4.0, 0.25) << page;
        EXPECT_NEAR(extent.trailingBlank.number(), 8.0, 0.25) << page;
    }
    EXPECT_TRUE(renderer.extent(2, MeasureBlank::Yes).whollyBlank);
}

TEST(LabelRenderer, MeasuresBlankAlongTheTape)
{
    const Sandbox sandbox;
    const auto document = openPages(sandbox, {pageWithBox({24, 60}, {8, 10, 4, 30}),
                                              pageWithBox({60, 24}, {5, 10, 40, 4}),
                                              {QSizeF(24, 60) * mm, {}},
                                              pageWithBox({24, 60}, {0, 0, 24, 60})});
    const LabelRenderer renderer(*document, QSizeF(24, 60) * mm);
    struct Row {
        double leading;
        double trailing;
        bool blank;
    };
    const Row rows[] = {{10, 20, false}, {5, 15, false}, {0, 0, true}, {0, 0, false}};
    for (int page = 0; page < 4; ++page) {
        const host::LabelExtent extent = renderer.extent(page, MeasureBlank::Yes);
        EXPECT_NEAR(extent.length.number(), 60.0, 1e-6) << page;
        // A dot of the measuring resolution is an eighth of a millimetre.
        EXPECT_NEAR(extent.leadingBlank.number(), rows[page].leading, 0.25) << page;
        EXPECT_NEAR(extent.trailingBlank.number(), rows[page].trailing, 0.25) << page;
        EXPECT_EQ(extent.whollyBlank, rows[page].blank) << page;
    }
    const host::LabelExtent unmeasured = renderer.extent(0, MeasureBlank::No);
    EXPECT_EQ(unmeasured.leadingBlank.number(), 0.0);
}

TEST(LabelRenderer, KeepsImagesOfHugeLabelsWithinBounds)
{
    const Sandbox sandbox;
    const auto document = openPages(sandbox, {pageWithBox({100, 5000}, {0, 0, 100, 5000})});
    const LabelRenderer renderer(*document, QSizeF(100, 5000) * mm);
    const QImage image = renderer.render(0, 11.8);
    EXPECT_LE(image.width(), 32000);
    EXPECT_LE(image.sizeInBytes(), 170'000'000);
    EXPECT_TRUE(isBlack(image, image.width() - 5, image.height() / 2.0));
}
