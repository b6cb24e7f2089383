// SPDX-License-Identifier: Apache-2.0
// What becomes of the dialog and the job when the sending does not go well, and the job's way to its end.
#include "QueueDialogFixture.h"

#include <dialog/job/JobWindow.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>
#include <tests/servers/FaultyServer.h>
#include <tests/support/FaultProxy.h>

#include <QApplication>
#include <QLineEdit>

#include <cups/ipp.h>

using test_support::turnEventLoop;

namespace {

class SendingTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd());
    }

    void SetUp() override
    {
        if (!cupsd->isRunning())
            cupsd->restart();
        QueueDialogTest::SetUp();
    }

    /// Opens the dialog on more pages than can be checked at once, so that Print waits for the check.
    void openLongDocument()
    {
        // With a cached printer, Print can be pressed immediately.
        fillCache(QStringLiteral("tape"));
        const std::vector<QByteArray> pages(10'000, "[0 0 170 68]");
        documentPath = sandbox.write(QStringLiteral("long.pdf"), pdfWithPageBoxes(pages));
        open(QStringLiteral("tape"));
        ASSERT_TRUE(waitUntil([this] { return button(QStringLiteral("Print"))->isEnabled(); }));
    }

    /// What the user has set, and that it is all still there.
    void set() const
    {
        Hands::click(panelBox("mMirrorPrintChkBx"));
        choosePaper(QStringLiteral("Tape 12 mm x 60 mm"));
    }
    void expectAllSet() const
    {
        EXPECT_TRUE(window->isVisible());
        EXPECT_FALSE(window->isSending());
        EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
        EXPECT_EQ(papers()->currentItem()->text(), QStringLiteral("Tape 12 mm x 60 mm"));
        EXPECT_TRUE(button(QStringLiteral("Print"))->isEnabled());
    }

    /// Presses Print and waits for the failure.
    void printExpectingError() const
    {
        Hands::click(button(QStringLiteral("Print")));
        EXPECT_TRUE(waitUntil([this] { return !window->isSending(); }));
    }

    void expectPrintsOnce(std::size_t before)
    {
        Hands::click(button(QStringLiteral("Print")));
        EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); })) << told().toStdString();
        EXPECT_TRUE(waitUntil([] { return waitingJobs().isEmpty(); }));
        EXPECT_EQ(cupsd->documents().size(), before + 1);
        EXPECT_EQ(cupsd->documents().back().option("KvMirror"), "ON");
        EXPECT_EQ(cupsd->documents().back().option("PageSize"), "W12H60");
    }

    static std::unique_ptr<dialog::JobWindow> follow(int jobId)
    {
        auto job = std::make_unique<dialog::JobWindow>(sharedServer(), QStringLiteral("tape"), jobId,
                                                       QStringLiteral("labels.pdf"));
        job->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(job.get(), test_support::failureMilliseconds));
        return job;
    }

    static bool says(const QWidget &job, const QString &words)
    {
        return waitUntil([&] {
            const auto labels = job.findChildren<QLabel *>();
            return std::ranges::any_of(labels,
                                       [&](const QLabel *label) { return label->text().contains(words); });
        });
    }

    int submit()
    {
        openAndSettle(QStringLiteral("tape"));
        print();
        return sender->lastJob()->id;
    }
};

} // namespace

TEST_F(SendingTest, ARefusalIsToldInTheServersWordsAndTheNextTimePrintsOnce)
{
    openAndSettle(QStringLiteral("tape"));
    set();
    const std::size_t before = cupsd->documents().size();
    cupsd->reject(QStringLiteral("tape"), QStringLiteral("closed for lunch"));
    printExpectingError();
    EXPECT_TRUE(told().contains(QStringLiteral("not accepting jobs"))) << told().toStdString();
    expectAllSet();
    meanwhile([] { cupsd->run(QStringLiteral("cupsaccept"), {QStringLiteral("tape")}); });
    expectPrintsOnce(before);
}

TEST_F(SendingTest, AConnectionThatBreaksLeavesNothingAndTheNextTimePrintsOnce)
{
    makeDocumentLarge(3'000'000);
    const test_support::FaultProxy breaking(cupsd->port(),
                                            test_support::cutRequests(IPP_OP_SEND_DOCUMENT, 1'000'000));
    openAndSettle(QStringLiteral("tape"), serverAt(breaking.address()));
    set();
    const std::size_t before = cupsd->documents().size();
    printExpectingError();
    EXPECT_TRUE(told().contains(QStringLiteral("was lost"))) << told().toStdString();
    EXPECT_FALSE(told().contains(QStringLiteral("taken back"))) << told().toStdString();
    expectAllSet();
    EXPECT_EQ(waitingJobs(), QString());
    EXPECT_EQ(cupsd->documents().size(), before);
}

TEST_F(SendingTest, AServerThatDiesIsToldAndTheNextTimePrintsOnce)
{
    openAndSettle(QStringLiteral("tape"));
    set();
    const std::size_t before = cupsd->documents().size();
    cupsd->kill();
    {
        printExpectingError();
        EXPECT_TRUE(told().contains(QStringLiteral("Cannot connect"))) << told().toStdString();
        expectAllSet();
    }
    cupsd->restart();
    expectPrintsOnce(before);
}

TEST_F(SendingTest, AFullSpoolIsToldAndLeavesNoJob)
{
    makeDocumentLarge(3'000'000);
    openAndSettle(QStringLiteral("tape"));
    set();
    const std::size_t before = cupsd->documents().size();
    cupsd->setSpoolFull(true);
    printExpectingError();
    EXPECT_TRUE(told().contains(QStringLiteral("the disk is full"))) << told().toStdString();
    expectAllSet();
    cupsd->setSpoolFull(false);
    EXPECT_EQ(waitingJobs(), QString()) << told().toStdString();
    expectPrintsOnce(before);
}

TEST_F(SendingTest, StopSendingTakesTheJobBack)
{
    makeDocumentLarge(30'000'000);
    // The job can be sent no further than this.
    const FaultyServer stalling(cupsd->port(), {.stallAfter = 500'000});
    openAndSettle(QStringLiteral("tape"), serverAt(stalling.address()));
    set();
    const std::size_t before = cupsd->documents().size();
    Hands::click(button(QStringLiteral("Print")));
    ASSERT_TRUE(window->isSending());
    QPushButton *const stop = button(QStringLiteral("Cancel sending"));
    ASSERT_TRUE(stop);
    EXPECT_FALSE(button(QStringLiteral("Print"))->isEnabled());
    EXPECT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    turnEventLoop();
    EXPECT_TRUE(stop->isEnabled());
    Hands::click(stop);
    EXPECT_FALSE(stop->isEnabled()) << "the click was heard, though the job is not back yet";
    EXPECT_TRUE(waitUntil([this] { return !window->isSending(); }));
    expectAllSet();
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(waitingJobs(), QString());
    EXPECT_EQ(cupsd->documents().size(), before);
}

TEST_F(SendingTest, ALongDocumentIsCheckedWhileTheWindowLives)
{
    openLongDocument();
    const std::size_t before = cupsd->documents().size();
    Hands::click(button(QStringLiteral("Print")));
    // The click is over long before so many pages are.
    EXPECT_TRUE(window->isSending());
    EXPECT_TRUE(window->isVisible());
    Hands::click(button(QStringLiteral("Cancel sending")));
    EXPECT_TRUE(waitUntil([this] { return !window->isSending(); }));
    Hands::click(button(QStringLiteral("Print")));
    EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); })) << told().toStdString();
    EXPECT_TRUE(waitUntil([] { return waitingJobs().isEmpty(); }));
    EXPECT_EQ(cupsd->documents().size(), before + 1);
}

TEST_F(SendingTest, WhatIsSetWhileTheLabelsAreMeasuredIsPrintedToo)
{
    openLongDocument();
    const auto *const strip = find<QWidget>(QStringLiteral("Label strip"));
    Hands::click(panelBox("mRemoveBlkSpaceChkBx"));
    EXPECT_TRUE(strip->accessibleDescription().contains(QStringLiteral("measuring")))
        << strip->accessibleDescription().toStdString();
    const std::size_t before = cupsd->documents().size();
    Hands::click(button(QStringLiteral("Print")));
    ASSERT_TRUE(window->isSending());
    EXPECT_TRUE(window->isVisible());
    Hands::click(panelBox("mMirrorPrintChkBx"));
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
    EXPECT_TRUE(window->isSending());
    ASSERT_TRUE(waitUntil([this] { return !window->isVisible(); })) << told().toStdString();
    EXPECT_TRUE(waitUntil([] { return waitingJobs().isEmpty(); }));
    ASSERT_EQ(cupsd->documents().size(), before + 1);
    EXPECT_EQ(cupsd->documents().back().option("KvRemoveBlkSpace"), "ON");
    EXPECT_EQ(cupsd->documents().back().option("KvMirror"), "ON");
}

TEST_F(SendingTest, ClosingTheWindowWhileSendingTakesTheJobBack)
{
    makeDocumentLarge(30'000'000);
    // While the server has not even answered that there is a job, and while it has a part of the document.
    for (const Faults &faults :
         {Faults{.holds = true, .heldOperation = IPP_OP_CREATE_JOB}, Faults{.stallAfter = 500'000}}) {
        SCOPED_TRACE(faults.heldOperation);
        FaultyServer server(cupsd->port(), faults);
        openAndSettle(QStringLiteral("tape"), serverAt(server.address()));
        const std::size_t before = cupsd->documents().size();
        cupsd->pause(QStringLiteral("tape"));
        Hands::click(button(QStringLiteral("Print")));
        EXPECT_TRUE(waitUntil([&] { return server.heldCount() + server.stalledCount() == 1; }));
        turnEventLoop();
        ASSERT_TRUE(window->isSending());
        window->close();
        if (faults.holds)
            server.release();
        EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); }));
        EXPECT_EQ(window->result(), QDialog::Rejected);
        EXPECT_TRUE(waitUntil([] { return waitingJobs().isEmpty(); })) << waitingJobs().toStdString();
        cupsd->resume(QStringLiteral("tape"));
        EXPECT_EQ(cupsd->documents().size(), before);
    }
}

TEST_F(SendingTest, ASilentServerWhileSendingCanBeLeft)
{
    const FaultyServer silent(0, {.silent = true});
    sendingServer = silentServerAt(silent.address());
    openAndSettle(QStringLiteral("tape"));
    set();
    EXPECT_EQ(told(), QString());
    printExpectingError();
    EXPECT_TRUE(told().contains(QStringLiteral("does not respond"))) << told().toStdString();
    expectAllSet();
}

TEST_F(SendingTest, TheJobWindowFollowsTheJobToItsEnd)
{
    cupsd->setMediaEmpty(true);
    const int jobId = submit();
    const auto job = follow(jobId);
    EXPECT_TRUE(says(*job, QStringLiteral("The label roll or tape is empty.")));
    cupsd->setMediaEmpty(false);
    EXPECT_TRUE(waitUntil([&] { return !job->isVisible(); }));
    EXPECT_EQ(job->result(), QDialog::Accepted);
    EXPECT_EQ(job->status()->state, host::JobState::Completed);
}

TEST_F(SendingTest, TheJobWindowTellsOfAHeldJobAndTakesItBack)
{
    cupsd->pause(QStringLiteral("tape"));
    const int jobId = submit();
    const auto job = follow(jobId);
    EXPECT_TRUE(says(*job, QStringLiteral("Waiting in the queue.")));
    cupsd->run(QStringLiteral("lp"), {QStringLiteral("-i"), QStringLiteral("tape-%1").arg(jobId),
                                      QStringLiteral("-H"), QStringLiteral("hold")});
    EXPECT_TRUE(says(*job, QStringLiteral("Held until it is released.")));
    Hands::click(button(job.get(), QStringLiteral("Cancel the job")));
    EXPECT_TRUE(says(*job, QStringLiteral("Canceled.")));
    EXPECT_EQ(job->status()->state, host::JobState::Canceled);
    EXPECT_TRUE(job->isVisible());
    EXPECT_FALSE(button(job.get(), QStringLiteral("Cancel the job"))->isEnabled());
    EXPECT_EQ(waitingJobs(), QString());
    cupsd->resume(QStringLiteral("tape"));
}

TEST_F(SendingTest, TheJobWindowEndsWithAJobOfWhichTheServerKeepsNoRecord)
{
    cupsd->configure("PreserveJobHistory No\n");
    cupsd->setMediaEmpty(true);
    const int jobId = submit();
    const auto job = follow(jobId);
    EXPECT_TRUE(says(*job, QStringLiteral("The label roll or tape is empty.")));
    cupsd->setMediaEmpty(false);
    EXPECT_TRUE(waitUntil([&] { return !job->isVisible(); }));
    EXPECT_EQ(job->result(), QDialog::Accepted);
    EXPECT_EQ(job->status()->state, host::JobState::Completed);
    cupsd->configure({});
}

TEST_F(SendingTest, TheJobWindowOutlivesTheServer)
{
    cupsd->pause(QStringLiteral("tape"));
    const int jobId = submit();
    const auto job = follow(jobId);
    EXPECT_TRUE(says(*job, QStringLiteral("Waiting in the queue.")));
    cupsd->kill();
    {
        EXPECT_TRUE(says(*job, QStringLiteral("Cannot connect")));
        // What cannot be done now can be tried again.
        Hands::click(button(job.get(), QStringLiteral("Cancel the job")));
        EXPECT_TRUE(
            waitUntil([&] { return button(job.get(), QStringLiteral("Cancel the job"))->isEnabled(); }));
    }
    cupsd->restart();
    EXPECT_TRUE(says(*job, QStringLiteral("Waiting in the queue.")));
    cupsd->resume(QStringLiteral("tape"));
    EXPECT_TRUE(waitUntil([&] { return !job->isVisible(); }));
}

TEST_F(SendingTest, WhatCannotBePrintedAnyMoreIsNotSaidToBeSent)
{
    openLongDocument();
    const std::size_t before = cupsd->documents().size();
    Hands::click(button(QStringLiteral("Print")));
    ASSERT_TRUE(isSeen(QStringLiteral("Sending \"")));
    field<QLineEdit>(QStringLiteral("Pages"))->setText(QStringLiteral("3-1"));
    EXPECT_TRUE(waitUntil([this] { return !isSeen(QStringLiteral("Sending \"")); }));
    EXPECT_FALSE(window->isSending());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(cupsd->documents().size(), before);
}
