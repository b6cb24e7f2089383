// SPDX-License-Identifier: Apache-2.0

#include <host/cups/jobs/JobMonitor.h>
#include <host/cups/server/Background.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/ManualClock.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/BackgroundThreads.h>
#include <tests/support/FaultProxy.h>

#include <QSemaphore>

#include <cups/ipp.h>
#include <sys/stat.h>

using host::CupsErrorKind;
using host::CupsServer;
using host::JobSubmission;
using host::JobTicket;
using test_support::turnEventLoop;

namespace {

/// A job that is being sent, and its outcome.
struct Sending {
    Sending(const CupsServer &server, const JobTicket &job)
        : submission(server)
    {
        QObject::connect(&submission, &JobSubmission::failed,
                         [this](const host::CupsError &now) { error = now; });
        QObject::connect(&submission, &JobSubmission::submitted, [this](int id) { jobId = id; });
        submission.submit(job);
    }
    bool isOver() const { return error || jobId; }

    std::optional<host::CupsError> error;
    std::optional<int> jobId;
    JobSubmission submission;
};

} // namespace

/// The faults of servers and documents: an error with a message, and nothing printed twice.
class PrintingFaultsTest : public PrintingTest {
protected:
    /// More than the systems of both sides take while the server reads nothing.
    JobTicket largeTicket() const
    {
        JobTicket job = ticket();
        job.documents = {{document(QStringLiteral("large.txt"), QByteArray(30'000'000, 'b'))}};
        return job;
    }
};

TEST_F(PrintingFaultsTest, DocumentsThatCannotBeReadLeaveNoJob)
{
    document(QStringLiteral("empty.txt"), "");
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &path : {folder.filePath(QStringLiteral("absent.txt")), folder.path(),
                                folder.filePath(QStringLiteral("empty.txt")), pipe}) {
        JobTicket job = ticket();
        job.documents.push_back({path});
        const Outcome outcome = print(job);
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->kind, CupsErrorKind::BadDocument);
        EXPECT_TRUE(outcome.error->message.contains(path)) << qPrintable(outcome.error->message);
    }
    JobTicket none = ticket();
    none.documents.clear();
    EXPECT_EQ(print(none).error->kind, CupsErrorKind::BadDocument);
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, AFileThatIsAnotherThanWasShownIsNotPrinted)
{
    JobTicket job = ticket();
    const QString path = document(QStringLiteral("labels.txt"), "what was shown\n");
    job.documents = {{path, {}, {}, host::fileStamp(path)}};
    document(QStringLiteral("labels.txt"), "something else\n");
    const Outcome outcome = print(job);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::BadDocument);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("has changed since it was opened")))
        << qPrintable(outcome.error->message);
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, AFileThatChangesWhileItIsSentIsTakenBack)
{
    const JobTicket job = largeTicket();
    const QString path = job.documents[0].path;
    // Goes on only when the file has changed.
    FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    Sending sending(serverAt(stalling.address()), job);
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    QFile file(path);
    // As long as before, and the same file.
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write("a");
    file.close();
    stalling.release();
    EXPECT_TRUE(waitUntil([&] { return sending.isOver(); }));
    ASSERT_TRUE(sending.error);
    EXPECT_EQ(sending.error->kind, CupsErrorKind::BadDocument) << qPrintable(sending.error->message);
    EXPECT_TRUE(sending.error->message.contains(QStringLiteral("changed while it was read")))
        << qPrintable(sending.error->message);
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, TheServersRefusalIsToldInItsWords)
{
    cupsd.reject(QStringLiteral("tape"), QStringLiteral("closed"));
    Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Rejected);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("not accepting jobs")))
        << qPrintable(outcome.error->message);

    const JobTicket job = ticket();
    cupsd.removeQueue(QStringLiteral("tape"));
    outcome = print(job);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::NotFound);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("does not exist")))
        << qPrintable(outcome.error->message);
}

TEST_F(PrintingFaultsTest, AServerThatIsAbsentOrSilentIsGivenUp)
{
    const FaultyServer silent(0, {.silent = true});
    EXPECT_EQ(print(ticket(), silentServerAt(silent.address())).error->kind, CupsErrorKind::Silent);
    const JobTicket job = ticket();
    cupsd.kill();
    EXPECT_EQ(print(job).error->kind, CupsErrorKind::Unreachable);
    cupsd.restart();
    const Outcome again = print(job);
    ASSERT_TRUE(again.jobId);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *again.jobId);
}

TEST_F(PrintingFaultsTest, ASlowServerPrintsOnce)
{
    FaultyServer slow(cupsd.port(), {.holds = true});
    Sending sending(serverAt(slow.address()), ticket());
    EXPECT_TRUE(waitUntil([&] { return slow.heldCount() == 1; }));
    turnEventLoop();
    EXPECT_TRUE(sending.submission.isBusy());
    slow.release();
    EXPECT_TRUE(waitUntil([&] { return sending.isOver(); }));
    ASSERT_TRUE(sending.jobId) << qPrintable(sending.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *sending.jobId);
    // The queue's holds, the job, its document and its release, nothing more.
    EXPECT_EQ(slow.requestCount(), 4);
}

TEST_F(PrintingFaultsTest, AnswersThatComeInPiecesAreWholeAnswers)
{
    const FaultyServer halting(cupsd.port(), {.gap = 300});
    const Outcome outcome = print(ticket(), serverAt(halting.address()));
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
    EXPECT_EQ(halting.requestCount(), 4);

    const FaultyServer headersOnly(cupsd.port(), {.holdsContent = true});
    const Outcome none = print(ticket(), silentServerAt(headersOnly.address()));
    ASSERT_TRUE(none.error);
    EXPECT_EQ(none.error->kind, CupsErrorKind::Silent) << qPrintable(none.error->message);
}

TEST_F(PrintingFaultsTest, ASlowLinkIsWaitedForAsLongAsItTakesSomething)
{
    // Our system takes all of it at once; the link carries it for much longer than the server may be silent.
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("large.txt"), QByteArray(1'500'000, 'b'))}};
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 500'000});
    ManualClock clock;
    const CupsServer link = clock.on(serverAt(slow.address()));
    Sending sending(link, job);
    qint64 taken = 0;
    for (int steps = 0; !sending.isOver(); ++steps) {
        // A server that reads data within this time is not silent.
        clock.advance(link.timeout / 4);
        taken += 100'000;
        EXPECT_TRUE(waitUntil([&] { return sending.isOver() || slow.readBytes() > taken; }));
        EXPECT_TRUE(clock.waitForLooks([&] { return sending.isOver(); }));
    }
    ASSERT_TRUE(sending.jobId) << qPrintable(sending.error->message);
    EXPECT_GT(clock.sinceStart(), 2 * link.timeout);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].content.size(), 1'500'000);
}

TEST_F(PrintingFaultsTest, ALinkThatTakesNothingMoreIsFoundSilent)
{
    const FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    ManualClock clock;
    Sending sending(clock.on(serverAt(stalling.address())), largeTicket());
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    while (!sending.isOver()) {
        clock.advance(std::chrono::hours(2));
        EXPECT_TRUE(clock.waitForLooks([&] { return sending.isOver(); }));
    }
    ASSERT_TRUE(sending.error);
    EXPECT_EQ(sending.error->kind, CupsErrorKind::Silent) << qPrintable(sending.error->message);
    EXPECT_EQ(cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}), "");
}

TEST_F(PrintingFaultsTest, AJobWhoseDocumentBreaksOffIsTakenBack)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("first.txt"), QByteArray(1000, 'a'))},
                     {document(QStringLiteral("large.txt"), QByteArray(2000000, 'b'))}};
    const test_support::FaultProxy breaking(cupsd.port(),
                                            test_support::cutRequests(IPP_OP_SEND_DOCUMENT, 500'000));
    const Outcome outcome = print(job, serverAt(breaking.address()));
    ASSERT_TRUE(outcome.error);
    EXPECT_FALSE(outcome.error->message.contains(QStringLiteral("could not be canceled")))
        << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}), "");
    // The first document may have been printed before the second broke off, but no second time.
    EXPECT_LE(cupsd.documents().size(), 1U);
}

TEST_F(PrintingFaultsTest, AServerThatDiesWhileItIsSentADocumentIsToldWithTheJobThatMayBeLeft)
{
    const FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    Sending sending(serverAt(stalling.address()), largeTicket());
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    cupsd.kill();
    EXPECT_TRUE(waitUntil([&] { return sending.isOver(); }));
    ASSERT_TRUE(sending.error);
    EXPECT_TRUE(sending.error->message.contains(QStringLiteral("Job tape-1 could not be canceled")))
        << qPrintable(sending.error->message);
    // The server is back: the broken job has no document and prints nothing.
    cupsd.restart();
    const Outcome again = print(ticket());
    ASSERT_TRUE(again.jobId);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *again.jobId);
}

TEST_F(PrintingFaultsTest, AJobThatTheServerHasIsPrintedOnceThoughTheServerDies)
{
    cupsd.pause(QStringLiteral("tape"));
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    host::JobMonitor monitor(server, QStringLiteral("tape"), *outcome.jobId, std::chrono::milliseconds(10));
    host::JobStatus last;
    std::optional<host::CupsError> error;
    QObject::connect(&monitor, &host::JobMonitor::changed, [&](const host::JobStatus &now) { last = now; });
    QObject::connect(&monitor, &host::JobMonitor::failed, [&](const host::CupsError &now) { error = now; });
    EXPECT_TRUE(waitUntil([&] { return last.jobId != 0; }));
    cupsd.kill();
    EXPECT_TRUE(waitUntil([&] { return error.has_value(); }));
    EXPECT_EQ(error->kind, CupsErrorKind::Unreachable);
    cupsd.restart();
    cupsd.resume(QStringLiteral("tape"));
    EXPECT_TRUE(waitUntil([&] { return last.isOver(); }));
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
}

TEST_F(PrintingFaultsTest, CancellingTakesTheJobBack)
{
    const FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    Sending sending(serverAt(stalling.address()), largeTicket());
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    EXPECT_TRUE(sending.submission.isBusy());
    sending.submission.cancel();
    EXPECT_TRUE(waitUntil([&] { return sending.isOver(); }));
    ASSERT_TRUE(sending.error);
    EXPECT_EQ(sending.error->kind, CupsErrorKind::Canceled) << qPrintable(sending.error->message);
    EXPECT_FALSE(sending.submission.isBusy());
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, AJobThatIsCanceledBeforeItsTurnIsNotSent)
{
    const FaultyServer counting(cupsd.port(), {});
    QSemaphore gate;
    {
        host::Background earlier;
        for (std::size_t task = 0; task < host::BackgroundPool::usualMaxThreads; ++task)
            earlier.start([&](host::BackgroundTask &) { gate.acquire(); });
        Sending sending(serverAt(counting.address()), ticket());
        sending.submission.cancel();
        sending.submission.cancel();
        EXPECT_TRUE(waitUntil([&] { return sending.isOver(); }));
        ASSERT_TRUE(sending.error);
        EXPECT_EQ(sending.error->kind, CupsErrorKind::Canceled);
        EXPECT_FALSE(sending.submission.isBusy());
    }
    gate.release(static_cast<int>(host::BackgroundPool::usualMaxThreads));
    test_support::awaitBackgroundThreads();
    EXPECT_EQ(counting.connectionCount(), 0);
}

TEST_F(PrintingFaultsTest, ClosingTheDialogWhileSendingWaitsForNothingAndPrintsNothing)
{
    FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    {
        const Sending sending(serverAt(stalling.address()), largeTicket());
        EXPECT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
        // The answer about the canceled job arrives only after the dialog is destroyed.
        stalling.hold();
    }
    EXPECT_TRUE(waitUntil([&] { return stalling.requestCount(IPP_OP_CANCEL_JOB) == 1; }));
    stalling.release();
    EXPECT_TRUE(
        waitUntil([&] { return cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}).isEmpty(); }));
    expectNothingWaits();
}
