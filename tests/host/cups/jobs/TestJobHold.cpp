// SPDX-License-Identifier: Apache-2.0
// Jobs are held until the server has all of their documents.

#include <host/cups/jobs/JobStatus.h>
#include <tests/servers/Attributes.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/PrintingTest.h>

#include <tests/support/FaultProxy.h>
#include <tests/support/LaterHold.h>

#include <cups/ipp.h>

using host::CupsErrorKind;
using host::JobState;
using host::JobSubmission;

namespace {

const QString tape = QStringLiteral("tape");

class JobHoldTest : public PrintingTest {
protected:
    host::JobStatus status(int jobId) const
    {
        host::BackgroundTask task;
        auto connection = host::CupsConnection::open(server, task);
        EXPECT_TRUE(connection);
        const auto job = queryJob(connection.value(), tape, jobId);
        EXPECT_TRUE(job) << qPrintable(job ? QString() : job.error().message);
        return job ? job.value() : host::JobStatus();
    }
};

} // namespace

TEST_F(JobHoldTest, NothingIsPrintedBeforeTheServerHasAllDocuments)
{
    FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    JobSubmission submission(serverAt(stalling.address()));
    std::optional<int> jobId;
    QObject::connect(&submission, &JobSubmission::submitted, [&](int id) { jobId = id; });
    submission.submit(ticketOfTwo({}, 20'000'000));
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    // Without end: a hold that the server has set by itself ends with its MultipleOperationTimeout.
    const host::JobStatus sending = status(1);
    EXPECT_EQ(sending.state, JobState::Held);
    EXPECT_EQ(sending.heldUntil, QStringLiteral("indefinite"));
    EXPECT_EQ(jobAttributes(server, 1).value("number-of-documents"), "1");
    stalling.release();
    EXPECT_TRUE(waitUntil([&] { return jobId.has_value(); }));
    EXPECT_EQ(cupsd.waitForDocuments(2).size(), 2U);
    EXPECT_EQ(jobAttributes(server, 1).value("job-hold-until"), "no-hold");
}

TEST_F(JobHoldTest, AHoldOfTheUsersOwnIsTheLastStep)
{
    const QStringList holds{QStringLiteral("indefinite"), test_support::holdPeriodHoursAway(),
                            test_support::holdTimeHoursAway(5, QStringLiteral("HH:mm"))};
    for (const QString &hold : holds) {
        SCOPED_TRACE(qPrintable(hold));
        const Outcome outcome = print(ticketOfTwo({.hold = hold}));
        ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
        const host::JobStatus now = status(*outcome.jobId);
        EXPECT_EQ(now.state, JobState::Held);
        EXPECT_EQ(now.heldUntil, hold);
    }
    EXPECT_TRUE(cupsd.documents().empty());
}

TEST_F(JobHoldTest, AHoldOfTheQueuesOwnIsTheLastStep)
{
    const QString period = test_support::holdPeriodHoursAway();
    cupsd.run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), tape, QStringLiteral("-o"),
                                          QStringLiteral("job-hold-until-default=") + period});
    const Outcome outcome = print(ticketOfTwo());
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
    EXPECT_EQ(status(*outcome.jobId).heldUntil, period);
    const Outcome wanted = print(ticketOfTwo({.hold = QStringLiteral("resume")}));
    ASSERT_TRUE(wanted.jobId) << qPrintable(wanted.error->message);
    EXPECT_EQ(cupsd.waitForDocuments(2)[0].job, *wanted.jobId);
}

TEST_F(JobHoldTest, ASingleDocumentIsHeldAsWell)
{
    const FaultyServer link(cupsd.port(), {});
    ASSERT_TRUE(print(ticket(), serverAt(link.address())).jobId);
    EXPECT_EQ(link.requestCount(IPP_OP_RELEASE_JOB), 1);
    EXPECT_EQ(cupsd.waitForDocuments(1).size(), 1U);
}

TEST_F(JobHoldTest, AJobThatIsNotReleasedIsCanceled)
{
    const test_support::FaultProxy breaking(cupsd.port(), test_support::cutRequests(IPP_OP_RELEASE_JOB));
    const Outcome outcome = print(ticketOfTwo(), serverAt(breaking.address()));
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable) << qPrintable(outcome.error->message);
    EXPECT_EQ(status(1).state, JobState::Canceled);
    expectNothingWaits();
}

TEST_F(JobHoldTest, AJobThatIsLeftHeldIsToldWithItsServer)
{
    // The link is down from the second document on; the first one alone is not printed.
    FaultyServer stalling(cupsd.port(), {.stallAfter = 500'000});
    JobSubmission submission(serverAt(stalling.address()));
    std::optional<host::CupsError> error;
    QObject::connect(&submission, &JobSubmission::failed, [&](const host::CupsError &now) { error = now; });
    submission.submit(ticketOfTwo({}, 20'000'000));
    ASSERT_TRUE(waitUntil([&] { return stalling.stalledCount() == 1; }));
    cupsd.kill();
    EXPECT_TRUE(waitUntil([&] { return error.has_value(); }));
    EXPECT_TRUE(error->message.contains(
        QStringLiteral("Job tape-1 could not be canceled; it is held on the print server \"%1\" and is not "
                       "printed unless it is released")
            .arg(stalling.address())))
        << qPrintable(error->message);
    cupsd.restart();
    EXPECT_EQ(status(1).heldUntil, QStringLiteral("indefinite"));
    EXPECT_TRUE(cupsd.documents().empty());
}
