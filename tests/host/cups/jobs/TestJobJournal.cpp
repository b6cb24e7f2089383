// SPDX-License-Identifier: Apache-2.0
// The journal of jobs that are being sent, and what is done about those that are left.

#include <host/cups/jobs/JobStatus.h>
#include <host/cups/jobs/LeftJob.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/AbandonedRecords.h>
#include <tests/support/FaultProxy.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <cups/ipp.h>

using host::CupsErrorKind;
using host::JobJournal;
using host::JobState;
using host::JobSubmission;
using host::LeftJobAction;
using test_support::abandonRecords;
using test_support::cutRequests;
using test_support::FaultProxy;
using test_support::lostAnswer;
using test_support::OtherConnections;

namespace {

class JobJournalTest : public PrintingTest {
protected:
    void SetUp() override
    {
        PrintingTest::SetUp();
        QDir(journal.folder()).removeRecursively();
    }

    QStringList files() const { return QDir(journal.folder()).entryList(QDir::Files | QDir::Hidden); }

    /// Leaves a job on the server that is held, with its record.
    host::JobRecord leaveJob()
    {
        const FaultProxy proxy(cupsd.port(), lostAnswer(IPP_OP_SEND_DOCUMENT, OtherConnections::Close));
        const Outcome outcome = print(ticketOfTwo(), serverAt(proxy.address()));
        EXPECT_TRUE(outcome.error);
        // A running program reports its jobs itself.
        EXPECT_TRUE(journal.left().jobs.empty());
        EXPECT_EQ(abandonRecords(journal.folder(), cupsd.address()), 1);
        const JobJournal::Left left = journal.left();
        EXPECT_EQ(left.jobs.size(), 1U);
        return left.jobs.empty() ? host::JobRecord() : left.jobs.front();
    }

    host::Result<QString, host::CupsError> settle(const host::JobRecord &record, LeftJobAction action) const
    {
        host::BackgroundTask task;
        return settleLeftJob(server, record, action, task);
    }

    JobState state(int jobId) const
    {
        host::BackgroundTask task;
        auto connection = host::CupsConnection::open(server, task);
        EXPECT_TRUE(connection);
        const auto job = queryJob(connection.value(), QStringLiteral("tape"), jobId);
        EXPECT_TRUE(job);
        return job ? job.value().state : JobState::Aborted;
    }

    const JobJournal journal;
};

constexpr QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                            QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                            QFileDevice::WriteOther | QFileDevice::ExeOther;

} // namespace

TEST_F(JobJournalTest, AJobIsRememberedUntilItIsSent)
{
    FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    JobSubmission submission(serverAt(stalling.address()));
    bool isSent = false;
    QObject::connect(&submission, &JobSubmission::submitted, [&] { isSent = true; });
    submission.submit(ticketOfTwo({}, 20'000'000));
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    ASSERT_EQ(files().size(), 1);
    QFile file(journal.folder() + u'/' + files().front());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject record = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_EQ(record.value(QStringLiteral("server")).toString(), stalling.address());
    EXPECT_EQ(record.value(QStringLiteral("queue")).toString(), QStringLiteral("tape"));
    EXPECT_EQ(record.value(QStringLiteral("title")).toString(), QStringLiteral("Labels"));
    EXPECT_EQ(record.value(QStringLiteral("job")).toInt(), 1);
    for (const QString &path : {file.fileName(), journal.folder(), QFileInfo(journal.folder()).path()})
        EXPECT_FALSE(QFile::permissions(path) & others) << qPrintable(path);
    EXPECT_TRUE(journal.left().jobs.empty());
    // Neither is a file left alone only by the numbers that stand in it.
    file.close();
    abandonRecords(journal.folder());
    EXPECT_TRUE(journal.left().jobs.empty());
    stalling.release();
    EXPECT_TRUE(waitUntil([&] { return isSent; }));
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JobJournalTest, AJobThatIsNotCreatedYetIsRemembered)
{
    FaultyServer slow(cupsd.port(), {.holds = true, .heldOperation = IPP_OP_CREATE_JOB});
    JobSubmission submission(serverAt(slow.address()));
    bool isSent = false;
    QObject::connect(&submission, &JobSubmission::submitted, [&] { isSent = true; });
    submission.submit(ticket());
    ASSERT_TRUE(waitUntil([&] { return slow.heldCount() == 1; }));
    EXPECT_EQ(files().size(), 1);
    slow.release();
    EXPECT_TRUE(waitUntil([&] { return isSent; }));
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JobJournalTest, AJobThatIsRefusedOrCanceledIsForgotten)
{
    const FaultProxy breaking(cupsd.port(), cutRequests(IPP_OP_RELEASE_JOB));
    EXPECT_TRUE(print(ticketOfTwo(), serverAt(breaking.address())).error);
    EXPECT_EQ(files(), QStringList());
    cupsd.reject(QStringLiteral("tape"), QStringLiteral("closed"));
    EXPECT_TRUE(print(ticket()).error);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JobJournalTest, AJobThatIsLeftIsCanceledOnRequest)
{
    const host::JobRecord record = leaveJob();
    EXPECT_EQ(record.name(), QStringLiteral("tape-1"));
    const QString words = leftJobSentence(record);
    EXPECT_TRUE(words.contains(
        QStringLiteral("job tape-1 (\"Labels\") on the print server \"%1\"").arg(cupsd.address())))
        << qPrintable(words);
    EXPECT_EQ(state(1), JobState::Held);
    const auto outcome = settle(record, LeftJobAction::Cancel);
    ASSERT_TRUE(outcome) << qPrintable(outcome.error().message);
    EXPECT_TRUE(outcome.value().contains(QStringLiteral("is canceled"))) << qPrintable(outcome.value());
    EXPECT_EQ(state(1), JobState::Canceled);
    EXPECT_EQ(files(), QStringList());
    expectNothingWaits();
}

TEST_F(JobJournalTest, AJobThatIsLeftIsReleasedOnRequest)
{
    const auto outcome = settle(leaveJob(), LeftJobAction::Release);
    ASSERT_TRUE(outcome) << qPrintable(outcome.error().message);
    EXPECT_TRUE(outcome.value().contains(QStringLiteral("is released"))) << qPrintable(outcome.value());
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, 1);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(JobJournalTest, AJobThatIsOverIsForgottenAndAnotherOfItsNumberLeftAlone)
{
    host::JobRecord record = leaveJob();
    record.uuid = "urn:uuid:00000000-0000-4000-8000-000000000000";
    const host::JobJournal::Left before = journal.left();
    const auto outcome = settle(record, LeftJobAction::Cancel);
    ASSERT_TRUE(outcome) << qPrintable(outcome.error().message);
    EXPECT_TRUE(outcome.value().contains(QStringLiteral("the job is finished")))
        << qPrintable(outcome.value());
    EXPECT_EQ(state(1), JobState::Held);
    EXPECT_EQ(journal.left().jobs.size(), before.jobs.size());
}

TEST_F(JobJournalTest, AJobStaysRememberedWhenItsServerCannotBeAsked)
{
    const host::JobRecord record = leaveJob();
    cupsd.kill();
    const auto outcome = settle(record, LeftJobAction::Cancel);
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().kind, CupsErrorKind::Unreachable);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(JobJournalTest, DamagedFilesAreRemovedWithAWord)
{
    ASSERT_TRUE(QDir().mkpath(journal.folder()));
    const QByteArray withNilUuid =
        R"({"server":"a","queue":"b","uuid":"urn:uuid:00000000-0000-4000-8000-000000000000"})";
    const std::vector<QByteArray> damaged{"",
                                          "{",
                                          "[1]",
                                          "{}",
                                          QByteArray(1000, '\xff'),
                                          R"({"server":1,"queue":[],"uuid":{}})",
                                          R"({"server":"a","queue":"b","uuid":"c"})",
                                          R"({"server":"a","queue":"b","uuid":"urn:uuid:../other"})",
                                          withNilUuid};
    for (std::size_t i = 0; i < damaged.size(); ++i) {
        QFile file(journal.folder() + QStringLiteral("/%1.json").arg(i));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged[i]);
    }
    QFile other(journal.folder() + QStringLiteral("/notes.txt"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    const JobJournal::Left left = journal.left();
    EXPECT_TRUE(left.jobs.empty());
    ASSERT_EQ(left.damages.size(), static_cast<qsizetype>(damaged.size()));
    EXPECT_TRUE(left.damages.front().contains(journal.folder() + QStringLiteral("/0.json")));
    EXPECT_EQ(files(), QStringList{QStringLiteral("notes.txt")});
    EXPECT_TRUE(journal.left().damages.isEmpty());
}
