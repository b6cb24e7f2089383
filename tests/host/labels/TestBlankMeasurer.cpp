// SPDX-License-Identifier: Apache-2.0

#include <host/base/Length.h>
#include <host/labels/BlankMeasurer.h>
#include <host/labels/InkSpan.h>
#include <host/labels/LabelRenderer.h>
#include <host/strip/CutPlanText.h>
#include <tests/samples/ClosedGate.h>
#include <tests/samples/SampleCuts.h>
#include <tests/samples/SamplePdf.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using host::InkSpan;
using host::LabelDocument;
using host::LabelExtent;
using host::Millimetres;
using host::operator""_mm;
using host::LabelRenderer;
using host::MeasureBlank;
using host::PageThread;

namespace {

constexpr double resolution = 8.0;

/// Pages of many sizes, upright and lying, each with a few boxes of black or grey, or with none.
std::vector<SamplePage> randomPages(int count, unsigned seed)
{
    std::mt19937 random(seed);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<>(low, high)(random);
    };
    std::vector<SamplePage> pages;
    for (int i = 0; i < count; ++i) {
        const QSizeF size(between(8.0, 90.0), between(8.0, 90.0));
        std::vector<QRectF> boxes;
        for (int box = static_cast<int>(random() % 4); box > 0; --box)
            boxes.emplace_back(between(0.0, size.width() - 4.0), between(0.0, size.height() - 4.0),
                               between(0.5, 4.0), between(0.5, 4.0));
        const QColor color = random() % 3 == 0 ? QColor(120, 120, 200) : QColor(Qt::black);
        pages.push_back({size * mm, [boxes, color](QPainter &painter) {
                             for (const QRectF &box : boxes)
                                 painter.fillRect(QRectF(box.topLeft() * mm, box.size() * mm), color);
                         }});
    }
    return pages;
}

std::unique_ptr<LabelDocument> open(const QStringList &paths)
{
    auto document = LabelDocument::open(paths);
    if (!document)
        qFatal("%s", qPrintable(document.error().message));
    return std::move(document).value();
}

bool hasInk(const QImage &label, int column)
{
    for (int row = 0; row < label.height(); ++row) {
        if (qGray(label.pixel(column, row)) < 250)
            return true;
    }
    return false;
}

/// The blank before and after the ink of a label's picture.
LabelExtent measurePicture(const QImage &label, Millimetres length)
{
    int first = 0;
    while (first < label.width() && !hasInk(label, first))
        ++first;
    if (first == label.width())
        return {length, 0.0_mm, 0.0_mm, true};
    int last = label.width() - 1;
    while (!hasInk(label, last))
        --last;
    const Millimetres dot = length / label.width();
    return {length, first * dot, (label.width() - 1 - last) * dot, false};
}

/// Asks for the pages and waits for them.
void measure(const LabelRenderer &renderer, int first, int end)
{
    for (int page = first; page < end; ++page)
        static_cast<void>(renderer.extent(page, MeasureBlank::Yes));
    renderer.measurer()->finish();
}

class BlankMeasurerTest : public testing::Test {
protected:
    static constexpr unsigned seed = 20260;
    static constexpr int pageCount = 150;

    void SetUp() override
    {
        document = open({path});
        thread = std::make_unique<PageThread>(*document);
        renderer = std::make_unique<LabelRenderer>(*document, paper, *thread);
    }

    LabelExtent extent(int page) const { return renderer->extent(page, MeasureBlank::Yes); }
    bool isMeasured(int page) const { return extent(page).isMeasured; }

    Sandbox sandbox;
    const QString path = writePdf(sandbox, QStringLiteral("pages.pdf"), randomPages(pageCount, seed));
    const QSizeF paper = QSizeF(24, 60) * mm;
    std::unique_ptr<LabelDocument> document;
    std::unique_ptr<PageThread> thread;
    std::unique_ptr<LabelRenderer> renderer;
};

host::CutPlan planOf(const LabelRenderer &renderer, int count, bool removeBlank)
{
    std::vector<int> pages(static_cast<std::size_t>(count));
    std::iota(pages.begin(), pages.end(), 0);
    std::vector<LabelExtent> extents;
    for (const int page : pages)
        extents.push_back(renderer.extent(page, removeBlank ? MeasureBlank::Yes : MeasureBlank::No));
    const SampleCuts cuts{.automaticCut = true, .labelsPerCut = 2, .removeBlank = removeBlank};
    return host::CutPlan::make(effectsOn(pages.size(), cuts), pages, extents, 2.0_mm);
}

} // namespace

TEST_F(BlankMeasurerTest, MeasuresWhatThePicturesOfTheLabelsShow)
{
    for (const QSizeF &size : {paper, paper.transposed(), QSizeF(100, 100) * mm, QSizeF(12, 20) * mm}) {
        const auto reference = open({path});
        const LabelRenderer atOnce(*reference, size);
        const LabelRenderer inBackground(*document, size, *thread);
        measure(inBackground, 0, pageCount);
        for (int page = 0; page < pageCount; ++page) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", page " << page << ", paper "
                                            << size.width() << " x " << size.height());
            const LabelExtent found = inBackground.extent(page, MeasureBlank::Yes);
            EXPECT_TRUE(found.isMeasured);
            EXPECT_EQ(found, atOnce.extent(page, MeasureBlank::Yes)) << "the same in both ways";
            const LabelExtent shown =
                measurePicture(atOnce.render(page, resolution), Millimetres(atOnce.labelSize().width()));
            EXPECT_DOUBLE_EQ(found.length.number(), shown.length.number());
            EXPECT_EQ(found.whollyBlank, shown.whollyBlank);
            // Page and label share their centre, which may lie between two dots.
            EXPECT_NEAR(found.leadingBlank.number(), shown.leadingBlank.number(), 1.01 / resolution);
            EXPECT_NEAR(found.trailingBlank.number(), shown.trailingBlank.number(), 1.01 / resolution);
        }
    }
}

TEST_F(BlankMeasurerTest, DrawsNothingOnTheMainThread)
{
    measure(*renderer, 0, pageCount);
    EXPECT_TRUE(isMeasured(pageCount - 1));
    EXPECT_EQ(document->drawingCount(), 0);
    const LabelRenderer atOnce(*document, paper);
    static_cast<void>(atOnce.extent(0, MeasureBlank::Yes));
    EXPECT_EQ(document->drawingCount(), 1) << "the count tells";
}

TEST_F(BlankMeasurerTest, AnswersAtOnceAndReportsTheEnd)
{
    ClosedGate gate(*thread);
    EXPECT_FALSE(isMeasured(3));
    EXPECT_EQ(extent(3).length.number(), renderer->labelSize().width());
    EXPECT_FALSE(renderer->measurer()->isIdle());
    QSignalSpy measured(renderer->measurer(), &host::BlankMeasurer::measured);
    gate.open();
    EXPECT_TRUE(measured.wait());
    EXPECT_TRUE(renderer->measurer()->isIdle());
    EXPECT_TRUE(isMeasured(3));
    EXPECT_FALSE(isMeasured(4)) << "it was not asked for";
}

TEST_F(BlankMeasurerTest, CanceledPagesAreNotMeasured)
{
    measure(*renderer, 0, 20);
    ClosedGate gate(*thread);
    for (int page = 0; page < pageCount; ++page)
        static_cast<void>(extent(page));
    // The task for the other pages waits at the gate now.
    QCoreApplication::processEvents();
    renderer->measurer()->cancel();
    EXPECT_TRUE(renderer->measurer()->isIdle());
    gate.open();
    awaitTasks(*thread);
    for (int page = 0; page < 20; ++page)
        EXPECT_TRUE(isMeasured(page)) << page;
    for (int page = 20; page < pageCount; ++page)
        EXPECT_FALSE(renderer->measurer()->extent(page)) << page;
    // Asked for once more, just now, they are measured.
    renderer->measurer()->finish();
    for (int page = 20; page < pageCount; ++page)
        EXPECT_TRUE(isMeasured(page)) << page;
}

TEST_F(BlankMeasurerTest, CanBeAskedAgainWhileACanceledTaskEnds)
{
    ClosedGate gate(*thread);
    static_cast<void>(extent(0));
    QCoreApplication::processEvents();
    renderer->measurer()->cancel();
    static_cast<void>(extent(1));
    gate.open();
    renderer->measurer()->finish();
    EXPECT_TRUE(isMeasured(1));
    EXPECT_FALSE(renderer->measurer()->extent(0));
}

TEST_F(BlankMeasurerTest, EndsInTheMiddleWithoutASignal)
{
    ClosedGate gate(*thread);
    static_cast<void>(planOf(*renderer, pageCount, true));
    QCoreApplication::processEvents();
    bool isSignalled = false;
    QObject::connect(renderer->measurer(), &host::BlankMeasurer::measured, [&] { isSignalled = true; });
    renderer.reset();
    gate.open();
    awaitTasks(*thread);
    EXPECT_FALSE(isSignalled);
}

TEST_F(BlankMeasurerTest, EndsWithItsThreadAndDocument)
{
    ClosedGate gate(*thread);
    static_cast<void>(planOf(*renderer, pageCount, true));
    QCoreApplication::processEvents();
    renderer.reset();
    thread.reset();
    document.reset();
    gate.open();
    QCoreApplication::processEvents();
}

TEST_F(BlankMeasurerTest, MeasuresThePagesOfSeveralDocumentsAsOneSequence)
{
    const QString second = writePdf(sandbox, QStringLiteral("second.pdf"), randomPages(30, seed + 1));
    const auto both = open({path, second});
    const auto alone = open({second});
    PageThread bothThread(*both);
    PageThread aloneThread(*alone);
    const LabelRenderer ofBoth(*both, paper, bothThread);
    const LabelRenderer ofSecond(*alone, paper, aloneThread);
    // Two threads measure at the same time.
    static_cast<void>(planOf(ofSecond, 30, true));
    measure(ofBoth, 0, both->pageCount());
    measure(*renderer, 0, pageCount);
    ofSecond.measurer()->finish();
    for (int page = 0; page < both->pageCount(); ++page) {
        const LabelExtent expected =
            page < pageCount ? extent(page) : ofSecond.extent(page - pageCount, MeasureBlank::Yes);
        EXPECT_EQ(ofBoth.extent(page, MeasureBlank::Yes), expected) << page;
    }
}

TEST_F(BlankMeasurerTest, APageThatCannotBeDrawnIsBlankAndKeepsItsLength)
{
    std::vector<QByteArray> boxes(600, "[0 0 170 68]");
    boxes[550] = "[0 0 0 0.001]";
    const auto hostile = open({sandbox.write(QStringLiteral("hostile.pdf"), pdfWithPageBoxes(boxes))});
    PageThread hostileThread(*hostile);
    const LabelRenderer labels(*hostile, paper, hostileThread);
    measure(labels, 540, 560);
    for (int page = 540; page < 560; ++page) {
        const LabelExtent found = labels.extent(page, MeasureBlank::Yes);
        EXPECT_TRUE(found.isMeasured && found.whollyBlank) << page;
        EXPECT_NEAR(found.length.number(), 60.0, 1e-6) << page;
    }
}

TEST_F(BlankMeasurerTest, NoLengthIsStatedBeforeItIsMeasured)
{
    ClosedGate gate(*thread);
    const host::CutPlan early = planOf(*renderer, 4, true);
    EXPECT_FALSE(early.isMeasured());
    EXPECT_EQ(host::cutPlanFigures(early),
              QStringLiteral("Labels: 4 \u00b7 Pieces: 2 \u00b7 Tape: measuring\u2026"));
    EXPECT_EQ(host::tapeText(early), QStringLiteral("measuring\u2026"));
    const QJsonObject json = host::cutPlanJson(early);
    EXPECT_TRUE(json.value(QStringLiteral("tapeUsed")).isNull());
    for (const char *const list : {"labels", "pieces"}) {
        const QJsonArray parts = json.value(QLatin1String(list)).toArray();
        for (const auto &each : parts)
            EXPECT_TRUE(each.toObject().value(QStringLiteral("length")).isNull()) << list;
    }
    const host::CutPlan whole = planOf(*renderer, 4, false);
    EXPECT_TRUE(whole.isMeasured()) << "lengths that do not depend on the blank are known at once";
    EXPECT_EQ(host::tapeText(whole), QStringLiteral("242 mm"));

    gate.open();
    renderer->measurer()->finish();
    const host::CutPlan final = planOf(*renderer, 4, true);
    EXPECT_TRUE(final.isMeasured());
    EXPECT_TRUE(host::cutPlanFigures(final).endsWith(QStringLiteral(" mm")));
    EXPECT_TRUE(host::cutPlanJson(final).value(QStringLiteral("tapeUsed")).isDouble());
    EXPECT_NE(final, early);
    EXPECT_EQ(final, planOf(*renderer, 4, true));
}

TEST_F(BlankMeasurerTest, APieceIsMeasuredWhenAllItsLabelsAre)
{
    ClosedGate gate(*thread);
    std::vector<LabelExtent> extents(4, {60.0_mm, 5.0_mm, 5.0_mm, false});
    extents[2].isMeasured = false;
    const host::CutPlan plan =
        host::CutPlan::make(effectsOn(4, {.automaticCut = true, .labelsPerCut = 2, .removeBlank = true}),
                            std::vector<int>{0, 1, 2, 3}, extents, std::nullopt);
    EXPECT_TRUE(plan.pieces()[0].isMeasured);
    EXPECT_FALSE(plan.pieces()[1].isMeasured);
    EXPECT_FALSE(plan.isMeasured());
}

TEST(InkSpan, FindsTheFirstAndTheLastInk)
{
    struct Row {
        const char *name;
        std::vector<QPoint> ink;
        std::optional<InkSpan> rows;
        std::optional<InkSpan> columns;
    };
    const Row rows[] = {
        {"nothing", {}, std::nullopt, std::nullopt},
        {"one dot", {{3, 2}}, InkSpan{2, 3}, InkSpan{3, 4}},
        {"corners", {{0, 0}, {7, 5}}, InkSpan{0, 6}, InkSpan{0, 8}},
        {"widened by later rows", {{4, 1}, {2, 2}, {6, 3}}, InkSpan{1, 4}, InkSpan{2, 7}},
        {"widened by earlier rows", {{1, 0}, {6, 0}, {3, 4}}, InkSpan{0, 5}, InkSpan{1, 7}},
    };
    for (const Row &row : rows) {
        for (const QImage::Format format :
             {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32}) {
            QImage image(8, 6, format);
            image.fill(format == QImage::Format_RGB32 ? Qt::white : Qt::transparent);
            for (const QPoint &dot : row.ink)
                image.setPixelColor(dot, Qt::black);
            EXPECT_EQ(host::inkedRows(image, image.rect()), row.rows) << row.name;
            EXPECT_EQ(host::inkedColumns(image, image.rect()), row.columns) << row.name;
        }
    }
}

TEST(InkSpan, LooksIntoTheAreaOnly)
{
    QImage image(8, 6, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (const QPoint &dot : {QPoint(0, 0), QPoint(3, 2), QPoint(7, 5)})
        image.setPixelColor(dot, Qt::black);
    EXPECT_EQ(host::inkedRows(image, {1, 1, 6, 4}), (InkSpan{2, 3}));
    EXPECT_EQ(host::inkedColumns(image, {1, 1, 6, 4}), (InkSpan{3, 4}));
    EXPECT_EQ(host::inkedColumns(image, {-5, -5, 50, 50}), (InkSpan{0, 8}));
    EXPECT_EQ(host::inkedRows(image, {20, 20, 5, 5}), std::nullopt);
    EXPECT_EQ(host::inkedRows(QImage(), {0, 0, 5, 5}), std::nullopt);
    EXPECT_EQ(host::inkedColumns(QImage(), {0, 0, 5, 5}), std::nullopt);
}

TEST(InkSpan, GreyThatPrintsWhiteIsNoInk)
{
    const std::pair<QColor, bool> rows[] = {
        {QColor(250, 250, 250), false},     {QColor(249, 249, 249), true}, {QColor(0, 0, 0, 4), false},
        {QColor(0, 0, 0, 8), true},         {QColor(255, 255, 0), true},   {QColor(255, 255, 255), false},
        {QColor(200, 200, 200, 10), false},
    };
    for (const auto &[color, isInk] : rows) {
        QImage image(3, 3, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        image.setPixelColor(1, 1, color);
        EXPECT_EQ(host::inkedRows(image, image.rect()).has_value(), isInk) << color.name().toStdString();
        EXPECT_EQ(host::inkedColumns(image, image.rect()).has_value(), isInk) << color.name().toStdString();
    }
}
