// SPDX-License-Identifier: Apache-2.0
// Answers of the server that do not arrive, wholly or in part: the state of the job is determined, or
// reported as unknown.

#include <host/cups/jobs/JobStatus.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/FaultProxy.h>

#include <cups/ipp.h>

using host::CupsErrorKind;
using host::JobState;
using host::JobSubmission;
using host::JobTicket;
using test_support::cutAnswer;
using test_support::cutRequests;
using test_support::FaultProxy;
using test_support::lostAnswer;
using test_support::OtherConnections;
using test_support::ProxyFault;

namespace {

class LostAnswersTest : public PrintingTest {
protected:
    Outcome printOver(const ProxyFault &fault, const JobTicket &job)
    {
        const FaultProxy proxy(cupsd.port(), fault);
        address = proxy.address();
        Outcome outcome = print(job, serverAt(address));
        EXPECT_TRUE(proxy.hasStruck());
        return outcome;
    }

    host::JobState state(int jobId) const
    {
        host::BackgroundTask task;
        auto connection = host::CupsConnection::open(server, task);
        EXPECT_TRUE(connection);
        const auto job = queryJob(connection.value(), QStringLiteral("tape"), jobId);
        EXPECT_TRUE(job);
        return job ? job.value().state : JobState::Aborted;
    }

    void expectUnknown(const Outcome &outcome, const QString &words) const
    {
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->kind, CupsErrorKind::OutcomeUnknown);
        EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("was lost"))) << told(outcome);
        EXPECT_TRUE(outcome.error->message.contains(words.arg(address))) << told(outcome);
    }

    static std::string told(const Outcome &outcome)
    {
        return outcome.error ? outcome.error->message.toStdString() : std::string("sent");
    }

    /// Where the last job was sent.
    QString address;
};

} // namespace

TEST_F(LostAnswersTest, AJobThatWasMadeUnheardIsFoundAndCanceled)
{
    cupsd.pause(QStringLiteral("tape"));
    // Of the same name and user.
    ASSERT_TRUE(print(ticket()).jobId);
    for (const ProxyFault &fault : {lostAnswer(IPP_OP_CREATE_JOB), cutAnswer(IPP_OP_CREATE_JOB)}) {
        const Outcome outcome = printOver(fault, ticket());
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable) << told(outcome);
    }
    EXPECT_EQ(state(1), JobState::Waiting);
    EXPECT_EQ(state(2), JobState::Canceled);
    EXPECT_EQ(state(3), JobState::Canceled);
}

TEST_F(LostAnswersTest, AJobThatMayHaveBeenMadeIsToldWhenNobodyCanBeAsked)
{
    const Outcome outcome = printOver(lostAnswer(IPP_OP_CREATE_JOB, OtherConnections::Close), ticket());
    expectUnknown(outcome, QStringLiteral("A job \"Labels\" without documents may be left in the queue "
                                          "\"tape\" of the print server \"%1\"; it prints nothing."));
}

TEST_F(LostAnswersTest, ARequestThatDidNotArriveLeavesNothingToTell)
{
    const Outcome outcome = printOver(cutRequests(IPP_OP_CREATE_JOB), ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable) << told(outcome);
    EXPECT_FALSE(outcome.error->message.contains(QStringLiteral("left"))) << told(outcome);
    expectNothingWaits();
}

TEST_F(LostAnswersTest, AJobThatTheServerHasIsSent)
{
    int count = 0;
    for (const int operation : {IPP_OP_RELEASE_JOB}) {
        for (const ProxyFault &fault : {lostAnswer(operation), cutAnswer(operation)}) {
            const JobTicket job = ticketOfTwo();
            const Outcome outcome = printOver(fault, job);
            ASSERT_TRUE(outcome.jobId) << told(outcome);
            count += static_cast<int>(job.documents.size());
            EXPECT_EQ(cupsd.waitForDocuments(static_cast<std::size_t>(count)).back().job, *outcome.jobId);
        }
    }
}

TEST_F(LostAnswersTest, AJobThatMayHaveBeenPrintedIsToldWithItsNumberAndServer)
{
    for (const ProxyFault &fault : {lostAnswer(IPP_OP_RELEASE_JOB, OtherConnections::Close),
                                    cutAnswer(IPP_OP_RELEASE_JOB, OtherConnections::Close)}) {
        const Outcome outcome = printOver(fault, ticket());
        expectUnknown(outcome, QStringLiteral("The print server \"%1\" has all documents of job tape-"));
        EXPECT_TRUE(told(outcome).find("it is printed, or it is still held") != std::string::npos)
            << told(outcome);
    }
}

TEST_F(LostAnswersTest, AJobThatWaitsForItsReleaseIsToldAsHeld)
{
    // Between the documents, the job is canceled; it is left when the link is down.
    const Outcome between = printOver(lostAnswer(IPP_OP_SEND_DOCUMENT), ticketOfTwo());
    ASSERT_TRUE(between.error);
    EXPECT_EQ(between.error->kind, CupsErrorKind::Unreachable) << told(between);
    EXPECT_EQ(state(1), JobState::Canceled);
    const Outcome left = printOver(lostAnswer(IPP_OP_SEND_DOCUMENT, OtherConnections::Close), ticketOfTwo());
    expectUnknown(left, QStringLiteral("Job tape-2 could not be canceled; it is held on the print server "
                                       "\"%1\" and is not printed unless it is released"));
    EXPECT_EQ(state(2), JobState::Held);
    EXPECT_EQ(left.error->message.count(QStringLiteral("was lost")), 1) << told(left);
    const Outcome released =
        printOver(lostAnswer(IPP_OP_RELEASE_JOB, OtherConnections::Close), ticketOfTwo());
    expectUnknown(released, QStringLiteral("The print server \"%1\" has all documents of job tape-3"));
    EXPECT_TRUE(told(released).find("it is still held") != std::string::npos) << told(released);
}

TEST_F(LostAnswersTest, AJobThatAnotherProgramHasCanceledIsReportedAsCanceled)
{
    cupsd.pause(QStringLiteral("tape"));
    FaultyServer slow(cupsd.port(), {.holds = true, .heldOperation = IPP_OP_SEND_DOCUMENT});
    JobSubmission submission(serverAt(slow.address()));
    Outcome outcome;
    QObject::connect(&submission, &JobSubmission::failed,
                     [&](const host::CupsError &error) { outcome.error = error; });
    submission.submit(ticket());
    ASSERT_TRUE(waitUntil([&] { return slow.heldCount() == 1; }));
    cupsd.run(QStringLiteral("cancel"), {QStringLiteral("tape-1")});
    slow.release();
    ASSERT_TRUE(waitUntil([&] { return outcome.error.has_value(); }));
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Rejected);
    EXPECT_TRUE(told(outcome).find("Job tape-1: Canceled.") != std::string::npos) << told(outcome);
}
