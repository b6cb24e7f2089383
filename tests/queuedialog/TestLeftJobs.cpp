// SPDX-License-Identifier: Apache-2.0
// Jobs that killed programs have left on print servers, as the dialog reports them.
#include "QueueDialogFixture.h"

#include <host/cups/jobs/JobJournal.h>
#include <tests/samples/SamplePpd.h>
#include <tests/support/AbandonedRecords.h>
#include <tests/support/FaultProxy.h>
#include <tests/support/Waiting.h>

#include <QDir>

#include <cups/ipp.h>

using test_support::waitUntil;

namespace {

class LeftJobsTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd());
    }

    void SetUp() override
    {
        QueueDialogTest::SetUp();
        QDir(journal.folder()).removeRecursively();
    }

    /// Leaves a job of two documents on the server, which has the first one; returns the job's number.
    int leaveJob()
    {
        const test_support::FaultProxy proxy(
            cupsd->port(),
            test_support::lostAnswer(IPP_OP_SEND_DOCUMENT, test_support::OtherConnections::Close));
        host::JobTicket job;
        job.destination.queue = QStringLiteral("tape");
        job.title = QStringLiteral("Labels");
        job.documents = {{documentPath}, {documentPath}};
        host::JobSubmission submission(serverAt(proxy.address()));
        bool hasFailed = false;
        QObject::connect(&submission, &host::JobSubmission::failed, [&] { hasFailed = true; });
        submission.submit(job);
        EXPECT_TRUE(waitUntil([&] { return hasFailed; }));
        EXPECT_EQ(test_support::abandonRecords(journal.folder(), cupsd->address()), 1);
        const host::JobJournal::Left left = journal.left();
        return left.jobs.empty() ? 0 : left.jobs.front().jobId.value_or(0);
    }

    /// Presses the button of the banner and waits for the text.
    void press(const QString &text, const QString &words)
    {
        Hands::click(button(window.get(), text));
        EXPECT_TRUE(waitUntil([&] { return told().contains(words); })) << told().toStdString();
    }

    const host::JobJournal journal;
};

} // namespace

TEST_F(LeftJobsTest, ABannerTellsOfAJobAndCancelsItOnRequest)
{
    const int jobId = leaveJob();
    openAndSettle(QStringLiteral("tape"));
    EXPECT_TRUE(told().contains(QStringLiteral("may have left job tape-%1 (\"Labels\") on the print server "
                                               "\"%2\"")
                                    .arg(QString::number(jobId), cupsd->address())))
        << told().toStdString();
    EXPECT_FALSE(waitingJobs().isEmpty()) << "nothing happens by itself";
    press(QStringLiteral("Cancel the job"), QStringLiteral("is canceled"));
    EXPECT_EQ(waitingJobs(), QString());
    EXPECT_TRUE(journal.left().jobs.empty());
    Hands::click(button(window.get(), QStringLiteral("Dismiss")));
    EXPECT_EQ(told(), QString());
}

TEST_F(LeftJobsTest, ABannerPrintsWhatIsThereOnRequest)
{
    const int jobId = leaveJob();
    const std::size_t before = cupsd->documents().size();
    openAndSettle(QStringLiteral("tape"));
    press(QStringLiteral("Release the job"), QStringLiteral("is released"));
    EXPECT_TRUE(waitUntil([&] { return cupsd->documents().size() == before + 1; }));
    EXPECT_EQ(cupsd->documents().back().job, jobId);
}

TEST_F(LeftJobsTest, AJobWhoseServerCannotBeAskedStaysInTheBanner)
{
    const int jobId = leaveJob();
    openAndSettle(QStringLiteral("tape"));
    cupsd->kill();
    press(QStringLiteral("Cancel the job"), QStringLiteral("Cannot connect"));
    EXPECT_TRUE(told().contains(QStringLiteral("may have left job tape-%1").arg(jobId)))
        << told().toStdString();
    cupsd->restart();
    press(QStringLiteral("Cancel the job"), QStringLiteral("is canceled"));
}

TEST_F(LeftJobsTest, NoBannerIsShownWhenNothingIsLeft)
{
    openAndSettle(QStringLiteral("tape"));
    EXPECT_EQ(told(), QString());
}
