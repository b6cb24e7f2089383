// SPDX-License-Identifier: Apache-2.0

#include <host/documents/PdfPages.h>
#include <host/labels/BlankMeasurer.h>
#include <host/labels/LabelRenderer.h>
#include <host/labels/PageCheck.h>
#include <host/labels/PageThread.h>
#include <tests/samples/ClosedGate.h>
#include <tests/samples/SamplePdf.h>

#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

using host::LabelDocument;
using host::PageThread;
using Urgency = host::PageThread::Urgency;

namespace {

std::unique_ptr<LabelDocument> openBoxes(const Sandbox &sandbox, const std::vector<QByteArray> &boxes)
{
    auto document = LabelDocument::open(sandbox.write(QStringLiteral("boxes.pdf"), pdfWithPageBoxes(boxes)));
    if (!document)
        qFatal("%s", qPrintable(document.error().message));
    return std::move(document).value();
}

class PageThreadTest : public testing::Test {
protected:
    /// A task that notes its name when it is delivered.
    PageThread::Task noting(const QString &name)
    {
        return [this, name](const LabelDocument &, const PageThread::ShouldPause &) {
            return [this, name] { delivered.append(name); };
        };
    }

    Sandbox sandbox;
    std::unique_ptr<LabelDocument> document = openBoxes(sandbox, {"[0 0 100 200]", "[0 0 30 40]"});
    QObject receiver;
    QStringList delivered;
};

} // namespace

TEST_F(PageThreadTest, RunsWhatIsUrgentFirstAndTheRestInOrder)
{
    PageThread thread(*document);
    ClosedGate gate(thread);
    thread.run(Urgency::Checked, &receiver, noting(QStringLiteral("check")));
    thread.run(Urgency::Measured, &receiver, noting(QStringLiteral("measure 1")));
    thread.run(Urgency::Measured, &receiver, noting(QStringLiteral("measure 2")));
    thread.run(Urgency::Awaited, &receiver, noting(QStringLiteral("await")));
    thread.run(Urgency::Shown, &receiver, noting(QStringLiteral("show")));
    gate.open();
    awaitTasks(thread);
    EXPECT_EQ(delivered.join(u','), QStringLiteral("show,await,measure 1,measure 2,check"));
}

TEST_F(PageThreadTest, ReadsTheSamePagesAndDeliversOnTheMainThread)
{
    PageThread thread(*document);
    QSizeF size;
    const QThread *worker = nullptr;
    const QThread *deliverer = nullptr;
    thread.run(Urgency::Shown, &receiver, [&](const LabelDocument &pages, const PageThread::ShouldPause &) {
        return [&, found = pages.pageSize(1), ran = QThread::currentThread()] {
            size = found;
            worker = ran;
            deliverer = QThread::currentThread();
        };
    });
    awaitTasks(thread);
    EXPECT_EQ(size, QSizeF(30, 40));
    EXPECT_EQ(deliverer, receiver.thread());
    EXPECT_NE(worker, receiver.thread());
}

TEST_F(PageThreadTest, ATaskPausesForAMoreUrgentOneOnly)
{
    struct Row {
        Urgency running;
        Urgency waiting;
        bool shouldPause;
    };
    const Row rows[] = {
        {Urgency::Checked, Urgency::Measured, true},   {Urgency::Checked, Urgency::Shown, true},
        {Urgency::Measured, Urgency::Awaited, true},   {Urgency::Awaited, Urgency::Shown, true},
        {Urgency::Awaited, Urgency::Measured, false},  {Urgency::Measured, Urgency::Shown, true},
        {Urgency::Measured, Urgency::Measured, false}, {Urgency::Measured, Urgency::Checked, false},
        {Urgency::Shown, Urgency::Shown, false},       {Urgency::Shown, Urgency::Checked, false},
    };
    PageThread thread(*document);
    for (const Row &row : rows) {
        QSemaphore begun;
        QSemaphore mayAsk;
        bool shouldPause = !row.shouldPause;
        thread.run(row.running, &receiver, [&](const LabelDocument &, const PageThread::ShouldPause &asked) {
            begun.release();
            mayAsk.acquire();
            return [&, answer = asked()] { shouldPause = answer; };
        });
        begun.acquire();
        thread.run(row.waiting, &receiver, noting(QStringLiteral("waiting")));
        mayAsk.release();
        awaitTasks(thread);
        EXPECT_EQ(shouldPause, row.shouldPause)
            << static_cast<int>(row.running) << ' ' << static_cast<int>(row.waiting);
    }
}

TEST_F(PageThreadTest, NothingIsDeliveredToAReceiverThatHasEnded)
{
    PageThread thread(*document);
    auto other = std::make_unique<QObject>();
    ClosedGate gate(thread);
    thread.run(Urgency::Shown, other.get(), noting(QStringLiteral("ended")));
    thread.run(Urgency::Shown, &receiver, noting(QStringLiteral("living")));
    other.reset();
    gate.open();
    awaitTasks(thread);
    EXPECT_EQ(delivered, QStringList{QStringLiteral("living")});
}

TEST_F(PageThreadTest, EndsInTheMiddleOfATaskWithoutWaitingForIt)
{
    auto thread = std::make_unique<PageThread>(*document);
    const auto begun = std::make_shared<QSemaphore>();
    const auto mayGoOn = std::make_shared<QSemaphore>();
    const auto hasPaused = std::make_shared<QSemaphore>();
    thread->run(Urgency::Shown, &receiver,
                [=, this](const LabelDocument &pages, const PageThread::ShouldPause &shouldPause) {
                    begun->release();
                    mayGoOn->acquire();
                    EXPECT_EQ(pages.pageSize(0), QSizeF(100, 200));
                    EXPECT_TRUE(shouldPause());
                    hasPaused->release();
                    return [this] { delivered.append(QStringLiteral("late")); };
                });
    thread->run(Urgency::Shown, &receiver, noting(QStringLiteral("never")));
    begun->acquire();
    // It returns although the task has not, and the document of the main thread may end, too.
    thread.reset();
    document.reset();
    mayGoOn->release();
    hasPaused->acquire();
    QCoreApplication::processEvents();
    EXPECT_TRUE(delivered.isEmpty());
}

TEST_F(PageThreadTest, TwoThreadsReadTwoDocuments)
{
    const Sandbox elsewhere;
    const auto otherDocument = openBoxes(elsewhere, {"[0 0 70 80]"});
    PageThread thread(*document);
    PageThread otherThread(*otherDocument);
    QSizeF sizes[2];
    const auto reading = [&](int index) {
        return [&, index](const LabelDocument &pages, const PageThread::ShouldPause &) {
            return [&, index, size = pages.pageSize(0)] { sizes[index] = size; };
        };
    };
    thread.run(Urgency::Shown, &receiver, reading(0));
    otherThread.run(Urgency::Shown, &receiver, reading(1));
    awaitTasks(thread);
    awaitTasks(otherThread);
    EXPECT_EQ(sizes[0], QSizeF(100, 200));
    EXPECT_EQ(sizes[1], QSizeF(70, 80));
}

TEST_F(PageThreadTest, AFileThatIsReplacedWhileItIsOpenIsReadAsItWas)
{
    PageThread thread(*document);
    const QString path = document->path();
    ASSERT_TRUE(QFile::remove(path));
    sandbox.write(QStringLiteral("boxes.pdf"), pdfWithPageBoxes({"[0 0 10 10]"}));
    QSizeF drawn;
    thread.run(Urgency::Shown, &receiver, [&](const LabelDocument &pages, const PageThread::ShouldPause &) {
        return [&, size = pages.renderTransparent(1, {30, 40}).size()] { drawn = size; };
    });
    awaitTasks(thread);
    EXPECT_EQ(drawn, QSizeF(30, 40));
}

TEST_F(PageThreadTest, PagesOfAFileThatIsGoneAreWhiteAndKeepTheirSize)
{
    ASSERT_TRUE(QFile::remove(document->path()));
    PageThread thread(*document);
    bool isNull = false;
    QSizeF size;
    QRgb colour = 0;
    thread.run(Urgency::Shown, &receiver, [&](const LabelDocument &pages, const PageThread::ShouldPause &) {
        return [&, null = pages.renderTransparent(1, {30, 40}).isNull(), found = pages.pageSize(1),
                pixel = pages.render(1, {30, 40}).pixel(5, 5)] {
            isNull = null;
            size = found;
            colour = pixel;
        };
    });
    awaitTasks(thread);
    EXPECT_TRUE(isNull);
    EXPECT_EQ(size, QSizeF(30, 40));
    EXPECT_EQ(colour, qRgb(255, 255, 255));
}

TEST_F(PageThreadTest, PageCheckReadsEverySizeThatPrintingAsksFor)
{
    std::vector<QByteArray> boxes(2'000, "[0 0 100 100]");
    boxes[1'200] = "[0 0 100 28346]";
    const auto pages = openBoxes(sandbox, boxes);
    EXPECT_TRUE(pages->isPageSizeKnown(host::PdfPages::checkedAtOnce - 1));
    EXPECT_FALSE(pages->isPageSizeKnown(host::PdfPages::checkedAtOnce));
    PageThread thread(*pages);
    host::PageCheck check(*pages, thread);
    QSignalSpy done(&check, &host::PageCheck::done);
    EXPECT_FALSE(check.isDone());
    check.start();
    check.start();
    while (!check.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(done.count(), 1);
    for (int page = 0; page < 2'000; ++page)
        EXPECT_TRUE(pages->isPageSizeKnown(page)) << page;
    const auto checked = pages->checkForPrinting();
    ASSERT_FALSE(checked);
    EXPECT_TRUE(checked.error().message.contains(QStringLiteral("page 1201 ")))
        << checked.error().message.toStdString();
}

TEST_F(PageThreadTest, PageCheckWithAJobWaitingComesBeforeAllMeasuring)
{
    // One page is left to read, so that one task does it.
    constexpr int count = host::PdfPages::checkedAtOnce + 1;
    for (const bool isStartedFirst : {true, false}) {
        SCOPED_TRACE(isStartedFirst);
        const auto pages = openBoxes(sandbox, std::vector<QByteArray>(count, "[0 0 100 100]"));
        PageThread thread(*pages);
        const host::LabelRenderer labels(*pages, QSizeF(100, 100), thread);
        host::PageCheck check(*pages, thread);
        const auto countMeasured = [&] {
            int measured = 0;
            for (int page = 0; page < count; ++page)
                measured += labels.measurer()->extent(page).has_value() ? 1 : 0;
            return measured;
        };
        int checkedCount = 0;
        int measuredBefore = -1;
        QObject::connect(&check, &host::PageCheck::done, &receiver, [&] {
            ++checkedCount;
            measuredBefore = countMeasured();
        });
        ClosedGate gate(thread);
        EXPECT_EQ(countMeasured(), 0) << "all are asked for now";
        if (isStartedFirst)
            check.start();
        QCoreApplication::processEvents();
        check.hurry();
        check.start();
        check.hurry();
        gate.open();
        labels.measurer()->finish();
        awaitTasks(thread);
        EXPECT_EQ(checkedCount, 1);
        EXPECT_EQ(measuredBefore, 0);
        EXPECT_EQ(countMeasured(), count);
    }
}

TEST_F(PageThreadTest, PageCheckOfAShortDocumentIsDoneAtOnce)
{
    PageThread thread(*document);
    host::PageCheck check(*document, thread);
    QSignalSpy done(&check, &host::PageCheck::done);
    check.start();
    EXPECT_TRUE(check.isDone());
    EXPECT_EQ(done.count(), 1);
}
