// SPDX-License-Identifier: Apache-2.0
#include "FaultyServer.h"
#include "PrintingTest.h"

#include <host/cups/JobMonitor.h>
#include <tests/support/StallWatch.h>

#include <sys/stat.h>

using host::CupsFailure;
using host::CupsServer;
using host::JobSubmission;
using host::JobTicket;
using test_support::StallWatch;

namespace {

/// A server that gives up soon, so that the tests are quick.
CupsServer impatient(const QString &address)
{
    CupsServer server;
    server.address = address;
    server.patience = std::chrono::milliseconds(700);
    return server;
}

} // namespace

/// The faults of servers and documents: an error in words, and nothing printed twice.
class PrintingFaultsTest : public PrintingTest {};

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
        EXPECT_EQ(outcome.error->kind, CupsFailure::BadDocument);
        EXPECT_TRUE(outcome.error->message.contains(path)) << qPrintable(outcome.error->message);
    }
    JobTicket none = ticket();
    none.documents.clear();
    EXPECT_EQ(print(none).error->kind, CupsFailure::BadDocument);
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
    EXPECT_EQ(outcome.error->kind, CupsFailure::BadDocument);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("has changed since it was opened")))
        << qPrintable(outcome.error->message);
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, AFileThatChangesWhileItIsSentIsTakenBack)
{
    JobTicket job = ticket();
    const QString path = document(QStringLiteral("large.txt"), QByteArray(30000000, 'a'));
    job.documents = {{path}};
    JobSubmission submission(server);
    std::optional<host::CupsError> error;
    std::optional<int> jobId;
    QObject::connect(&submission, &JobSubmission::failed, [&](const host::CupsError &now) { error = now; });
    QObject::connect(&submission, &JobSubmission::submitted, [&](int id) { jobId = id; });
    bool isRewritten = false;
    QObject::connect(&submission, &JobSubmission::progressed, [&] {
        QFile file(path);
        // As long as before, and the same file.
        if (!std::exchange(isRewritten, true) && file.open(QIODevice::ReadWrite))
            file.write("b");
    });
    submission.submit(job);
    EXPECT_TRUE(waitFor([&] { return error || jobId; }));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, CupsFailure::BadDocument) << qPrintable(error->message);
    EXPECT_TRUE(error->message.contains(QStringLiteral("changed while it was read")))
        << qPrintable(error->message);
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, TheServersRefusalIsToldInItsWords)
{
    cupsd.reject(QStringLiteral("tape"), QStringLiteral("closed"));
    Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsFailure::Refused);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("not accepting jobs")))
        << qPrintable(outcome.error->message);

    const JobTicket job = ticket();
    cupsd.removeQueue(QStringLiteral("tape"));
    outcome = print(job);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsFailure::NotFound);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("does not exist")))
        << qPrintable(outcome.error->message);
}

TEST_F(PrintingFaultsTest, AServerThatIsAbsentOrSilentIsGivenUp)
{
    const FaultyServer silent(0, {.silent = true});
    EXPECT_EQ(print(ticket(), impatient(silent.address())).error->kind, CupsFailure::Silent);
    const JobTicket job = ticket();
    cupsd.kill();
    EXPECT_EQ(print(job).error->kind, CupsFailure::Unreachable);
    cupsd.restart();
    const Outcome again = print(job);
    ASSERT_TRUE(again.jobId);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *again.jobId);
}

TEST_F(PrintingFaultsTest, ASlowServerPrintsOnce)
{
    const FaultyServer slow(cupsd.port(), {.delay = 500});
    const Outcome outcome = print(ticket(), impatient(slow.address()));
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
    // The job and its document, nothing more.
    EXPECT_EQ(slow.requestCount(), 2);
}

TEST_F(PrintingFaultsTest, AnswersThatComeInPiecesAreWholeAnswers)
{
    const FaultyServer halting(cupsd.port(), {.gap = 300});
    const Outcome outcome = print(ticket(), impatient(halting.address()));
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
    EXPECT_EQ(halting.requestCount(), 2);

    const FaultyServer tooHalting(cupsd.port(), {.gap = 1500});
    const Outcome none = print(ticket(), impatient(tooHalting.address()));
    ASSERT_TRUE(none.error);
    EXPECT_EQ(none.error->kind, CupsFailure::Silent) << qPrintable(none.error->message);
}

TEST_F(PrintingFaultsTest, ASlowLinkIsWaitedForAsLongAsItTakesSomething)
{
    // Our system takes all of it at once; the link carries it for much longer than the patience lasts.
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("large.txt"), QByteArray(1500000, 'b'))}};
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 500000});
    const Outcome outcome = print(job, impatient(slow.address()));
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].content.size(), 1500000);

    const FaultyServer stalling(cupsd.port(), {.bytesPerSecond = 500000, .stallAfter = 500000});
    const Outcome none = print(job, impatient(stalling.address()));
    ASSERT_TRUE(none.error);
    EXPECT_EQ(none.error->kind, CupsFailure::Silent) << qPrintable(none.error->message);
    EXPECT_EQ(cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}), "");
}

TEST_F(PrintingFaultsTest, AJobWhoseDocumentBreaksOffIsTakenBack)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("first.txt"), QByteArray(1000, 'a'))},
                     {document(QStringLiteral("large.txt"), QByteArray(2000000, 'b'))}};
    const FaultyServer breaking(cupsd.port(), {.breakAfter = 500000});
    const Outcome outcome = print(job, impatient(breaking.address()));
    ASSERT_TRUE(outcome.error);
    EXPECT_FALSE(outcome.error->message.contains(QStringLiteral("could not be taken back")))
        << qPrintable(outcome.error->message);
    EXPECT_EQ(cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}), "");
    // The first document may have been printed before the second broke off, but no second time.
    EXPECT_LE(cupsd.documents().size(), 1U);
}

TEST_F(PrintingFaultsTest, AServerThatDiesWhileItIsSentADocumentIsToldWithTheJobThatMayBeLeft)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("large.txt"), QByteArray(30000000, 'b'))}};
    JobSubmission submission(impatient(cupsd.address()));
    std::optional<host::CupsError> error;
    QObject::connect(&submission, &JobSubmission::failed, [&](const host::CupsError &now) { error = now; });
    bool killed = false;
    QObject::connect(&submission, &JobSubmission::progressed, [&](const host::UploadProgress &progress) {
        if (progress.sent > 0 && !std::exchange(killed, true))
            cupsd.kill();
    });
    submission.submit(job);
    EXPECT_TRUE(waitFor([&] { return error.has_value(); }));
    EXPECT_TRUE(killed);
    EXPECT_TRUE(error->message.contains(QStringLiteral("Job tape-1 could not be taken back")))
        << qPrintable(error->message);
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
    host::JobMonitor monitor(impatient(cupsd.address()), QStringLiteral("tape"), *outcome.jobId,
                             std::chrono::milliseconds(10));
    host::JobStatus last;
    std::optional<host::CupsError> error;
    QObject::connect(&monitor, &host::JobMonitor::changed, [&](const host::JobStatus &now) { last = now; });
    QObject::connect(&monitor, &host::JobMonitor::failed, [&](const host::CupsError &now) { error = now; });
    EXPECT_TRUE(waitFor([&] { return last.jobId != 0; }));
    cupsd.kill();
    EXPECT_TRUE(waitFor([&] { return error.has_value(); }));
    EXPECT_EQ(error->kind, CupsFailure::Unreachable);
    cupsd.restart();
    cupsd.resume(QStringLiteral("tape"));
    EXPECT_TRUE(waitFor([&] { return last.isOver(); }));
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
}

TEST_F(PrintingFaultsTest, CancellingTakesTheJobBack)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("large.txt"), QByteArray(30000000, 'b'))}};
    JobSubmission submission(server);
    std::optional<host::CupsError> error;
    std::optional<int> jobId;
    QObject::connect(&submission, &JobSubmission::failed, [&](const host::CupsError &now) { error = now; });
    QObject::connect(&submission, &JobSubmission::submitted, [&](int id) { jobId = id; });
    QObject::connect(&submission, &JobSubmission::progressed, [&] { submission.cancel(); });
    submission.submit(job);
    EXPECT_TRUE(submission.isBusy());
    EXPECT_TRUE(waitFor([&] { return error || jobId; }));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, CupsFailure::Cancelled) << qPrintable(error->message);
    EXPECT_FALSE(submission.isBusy());
    expectNothingWaits();
}

TEST_F(PrintingFaultsTest, ClosingTheDialogWhileSendingWaitsForNothingAndPrintsNothing)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("large.txt"), QByteArray(30000000, 'b'))}};
    const StallWatch watch;
    {
        JobSubmission submission(server);
        bool sending = false;
        QObject::connect(&submission, &JobSubmission::progressed, [&] { sending = true; });
        submission.submit(job);
        EXPECT_TRUE(waitFor([&] { return sending; }));
    }
    EXPECT_NO_STALL(watch);
    EXPECT_TRUE(
        waitFor([&] { return cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}).isEmpty(); }));
    expectNothingWaits();
}
