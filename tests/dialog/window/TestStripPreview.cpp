// SPDX-License-Identifier: Apache-2.0

#include <dialog/window/PagePreview.h>
#include <dialog/window/Screenshot.h>
#include <dialog/window/StripPreview.h>
#include <host/labels/BlankMeasurer.h>
#include <host/strip/CutPlanText.h>
#include <tests/samples/ClosedGate.h>
#include <tests/samples/SampleCuts.h>
#include <tests/samples/SamplePdf.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <numeric>

namespace {

constexpr int pageCount = 40;

/// Counts the paintings of a widget.
class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// Labels 60 mm by 24 mm, each with a black box at another place.
class StripPreviewTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::vector<SamplePage> pages;
        for (int i = 0; i < pageCount; ++i)
            pages.push_back({QSizeF(60, 24) * mm, [i](QPainter &painter) {
                                 painter.fillRect(QRectF((5 + i) * mm, 4 * mm, 10 * mm, 16 * mm), Qt::black);
                             }});
        path = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
        document = open();
        thread = std::make_unique<host::PageThread>(*document);
        renderer = std::make_unique<host::LabelRenderer>(*document, paper, *thread);
    }

    std::unique_ptr<host::LabelDocument> open() const
    {
        auto opened = host::LabelDocument::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::move(opened).value();
    }

    static host::CutPlan planWith(const host::LabelRenderer &renderer, bool removeBlank)
    {
        std::vector<int> pages(pageCount);
        std::iota(pages.begin(), pages.end(), 0);
        const auto blank = removeBlank ? host::MeasureBlank::Yes : host::MeasureBlank::No;
        std::vector<host::LabelExtent> extents;
        for (const int page : pages)
            extents.push_back(renderer.extent(page, blank));
        return host::CutPlan::make(effectsOn(pageCount, {.automaticCut = true, .removeBlank = removeBlank}),
                                   pages, extents, host::Millimetres(2.0));
    }
    host::CutPlan plan(bool removeBlank = false) const { return planWith(*renderer, removeBlank); }

    static void show(dialog::StripPreview &preview)
    {
        preview.resize(900, 240);
        preview.show();
        QApplication::processEvents();
    }

    /// What the strip shows at that place when everything is drawn at once.
    QImage expected(bool removeBlank, int scrolledTo = 0) const
    {
        const auto reference = open();
        const host::LabelRenderer atOnce(*reference, paper);
        dialog::StripPreview preview(nullptr);
        preview.setPlan(planWith(atOnce, removeBlank), atOnce);
        show(preview);
        preview.horizontalScrollBar()->setValue(scrolledTo);
        return preview.viewport()->grab().toImage();
    }

    static QImage picture(dialog::StripPreview &preview) { return preview.viewport()->grab().toImage(); }

    static void awaitComplete(const dialog::StripPreview &preview)
    {
        while (!preview.isComplete())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    Sandbox sandbox;
    QString path;
    const QSizeF paper = QSizeF(24, 60) * mm;
    std::unique_ptr<host::LabelDocument> document;
    std::unique_ptr<host::PageThread> thread;
    std::unique_ptr<host::LabelRenderer> renderer;
};

} // namespace

TEST_F(StripPreviewTest, PaintsWhatIsDrawnAndTheRestWhenItIs)
{
    dialog::StripPreview preview(nullptr);
    int completed = 0;
    QObject::connect(&preview, &dialog::StripPreview::completed, [&] { ++completed; });
    {
        const ClosedGate gate(*thread);
        preview.setPlan(plan(), *renderer);
        show(preview);
        EXPECT_FALSE(preview.isComplete());
        EXPECT_EQ(completed, 0);
        EXPECT_NE(picture(preview), expected(false));
    }
    awaitComplete(preview);
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(picture(preview), expected(false));
    EXPECT_EQ(document->drawingCount(), 0) << "nothing is drawn on the main thread";
}

TEST_F(StripPreviewTest, DrawsWhatIsScrolledIntoSight)
{
    dialog::StripPreview preview(nullptr);
    preview.setPlan(plan(), *renderer);
    show(preview);
    awaitComplete(preview);
    QScrollBar *const bar = preview.horizontalScrollBar();
    for (const int value : {bar->maximum(), bar->maximum() / 2, 0}) {
        bar->setValue(value);
        EXPECT_EQ(preview.isComplete(), false) << "until it is painted";
        awaitComplete(preview);
        EXPECT_EQ(picture(preview), expected(false, value)) << value;
    }
    EXPECT_EQ(document->drawingCount(), 0);
}

TEST_F(StripPreviewTest, SaysNoLengthBeforeItIsMeasured)
{
    dialog::StripPreview preview(nullptr);
    {
        const ClosedGate gate(*thread);
        preview.setPlan(plan(true), *renderer);
        show(preview);
        EXPECT_TRUE(preview.accessibleDescription().contains(QStringLiteral("Tape: measuring\u2026")))
            << preview.accessibleDescription().toStdString();
        EXPECT_FALSE(preview.accessibleDescription().contains(QStringLiteral(" mm")));
    }
    EXPECT_FALSE(preview.isComplete());
    renderer->measurer()->finish();
    preview.setPlan(plan(true), *renderer);
    EXPECT_TRUE(preview.accessibleDescription().startsWith(host::cutPlanFigures(plan(true))));
    EXPECT_TRUE(preview.accessibleDescription().contains(QStringLiteral(" mm")));
    awaitComplete(preview);
    EXPECT_EQ(picture(preview), expected(true));
    EXPECT_EQ(document->drawingCount(), 0);
}

TEST_F(StripPreviewTest, APlanThatEqualsTheOneOnShowPaintsNothing)
{
    dialog::StripPreview preview(nullptr);
    preview.setPlan(plan(), *renderer);
    show(preview);
    awaitComplete(preview);
    QApplication::processEvents();
    const PaintCount paintings(preview.viewport());
    const host::LabelRenderer samePaper(*document, paper, *thread);
    preview.setPlan(plan(), *renderer);
    preview.clear();
    preview.setPlan(plan(), samePaper);
    QApplication::processEvents();
    EXPECT_EQ(paintings.count, 0);
    EXPECT_TRUE(preview.isComplete());
    EXPECT_FALSE(preview.accessibleDescription().isEmpty());

    const host::LabelRenderer otherPaper(*document, QSizeF(36, 60) * mm, *thread);
    preview.setPlan(plan(), otherPaper);
    QApplication::processEvents();
    EXPECT_GT(paintings.count, 0);
    awaitComplete(preview);
}

TEST_F(StripPreviewTest, ShowsNothingWhenItIsCleared)
{
    dialog::StripPreview preview(nullptr);
    preview.setPlan(plan(), *renderer);
    show(preview);
    awaitComplete(preview);
    preview.clear();
    renderer.reset();
    QApplication::processEvents();
    EXPECT_TRUE(preview.accessibleDescription().isEmpty());
    EXPECT_EQ(preview.horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(preview.isComplete());
    dialog::StripPreview empty(nullptr);
    show(empty);
    EXPECT_EQ(picture(preview), picture(empty));
}

TEST_F(StripPreviewTest, EndsWhileItsLabelsAreDrawn)
{
    auto preview = std::make_unique<dialog::StripPreview>(nullptr);
    ClosedGate gate(*thread);
    preview->setPlan(plan(), *renderer);
    show(*preview);
    preview.reset();
    gate.open();
    awaitTasks(*thread);
}

TEST_F(StripPreviewTest, ACompletePictureHoldsAllLabels)
{
    dialog::StripPreview preview(nullptr);
    ClosedGate gate(*thread);
    preview.setPlan(plan(), *renderer);
    show(preview);
    QTimer::singleShot(0, &preview, [&] { gate.open(); });
    const QImage complete = dialog::completePicture(preview);
    EXPECT_TRUE(preview.isComplete());
    const auto reference = open();
    const host::LabelRenderer atOnce(*reference, paper);
    dialog::StripPreview expectedPreview(nullptr);
    expectedPreview.setPlan(planWith(atOnce, false), atOnce);
    show(expectedPreview);
    EXPECT_EQ(complete, expectedPreview.grab().toImage());
}

TEST_F(StripPreviewTest, APageIsShownWhenItIsDrawn)
{
    const auto reference = open();
    const host::LabelRenderer atOnce(*reference, paper);
    dialog::PagePreview expectedPreview(*reference, nullptr);
    expectedPreview.setRenderer(atOnce);
    dialog::PagePreview preview(*document, nullptr);
    preview.setRenderer(*renderer);
    for (dialog::PagePreview *const each : {&expectedPreview, &preview}) {
        each->resize(500, 300);
        each->show();
    }
    for (int page = 0; page < 3; ++page) {
        EXPECT_EQ(dialog::completePicture(preview), dialog::completePicture(expectedPreview)) << page;
        for (dialog::PagePreview *const each : {&expectedPreview, &preview})
            each->findChildren<QToolButton *>().last()->click();
        EXPECT_FALSE(preview.isComplete());
    }
    EXPECT_EQ(document->drawingCount(), 0);
    EXPECT_GT(reference->drawingCount(), 0);
}

TEST_F(StripPreviewTest, APageIsDrawnOnceForAllItsCopiesAndOnceForEachResolution)
{
    const auto drawings = [this] {
        int count = 0;
        QEventLoop loop;
        thread->run(host::PageThread::Urgency::Checked, &loop,
                    [&](const host::LabelDocument &pages, const auto &) {
                        return [&, drawn = pages.drawingCount()] {
                            count = drawn;
                            loop.quit();
                        };
                    });
        loop.exec();
        return count;
    };
    const std::unique_ptr<host::LabelPictures> pictures = renderer->makePictures();
    const auto showAndCount = [&](const std::vector<int> &pages, double resolution) {
        pictures->show(pages, resolution);
        while (!pictures->isComplete())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return drawings();
    };
    EXPECT_EQ(showAndCount({3, 3, 4, 3, 4}, 2.0), 2);
    EXPECT_EQ(showAndCount({4, 5}, 2.0), 3) << "what has been drawn is kept";
    EXPECT_EQ(pictures->picture(5)->size(), QSize(120, 48));
    const ClosedGate gate(*thread);
    pictures->show({5}, 3.0);
    EXPECT_FALSE(pictures->isComplete());
    EXPECT_EQ(pictures->picture(5)->size(), QSize(120, 48)) << "the old one until the new one is there";
    EXPECT_EQ(pictures->picture(9), nullptr);
}

TEST_F(StripPreviewTest, APageOfUnknownSizeIsSaidToShrinkWhenItIsDrawn)
{
    // The sizes of pages far behind are not read when the document is opened.
    std::vector<QByteArray> boxes(600, "[0 0 170 68]");
    std::fill(boxes.begin() + 500, boxes.end(), "[0 0 700 700]");
    auto opened =
        host::LabelDocument::open(sandbox.write(QStringLiteral("long.pdf"), pdfWithPageBoxes(boxes)));
    ASSERT_TRUE(opened);
    const auto longDocument = std::move(opened).value();
    host::PageThread longThread(*longDocument);
    const host::LabelRenderer labels(*longDocument, paper, longThread);
    EXPECT_FALSE(labels.shrinks(550)) << "not known";
    const std::unique_ptr<host::LabelPictures> pictures = labels.makePictures();
    pictures->show({550}, 2.0);
    while (!pictures->isComplete())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(labels.shrinks(550));
    EXPECT_FALSE(labels.shrinks(0));
}
