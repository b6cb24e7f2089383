// SPDX-License-Identifier: Apache-2.0
// Servers that answer too early, not at all, or with a question.

#include <tests/servers/FaultyServer.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/FaultProxy.h>

#include <cups/ipp.h>

using host::CupsErrorKind;
using host::CupsServer;
using host::JobSubmission;
using host::JobTicket;

namespace {

class EarlyAnswersTest : public PrintingTest {
protected:
    /// More than the system takes for a server that has not read it yet.
    JobTicket largeTicket() const
    {
        JobTicket job = ticket();
        job.documents = {{document(QStringLiteral("large.txt"), QByteArray(20'000'000, 'b'))}};
        return job;
    }

    static CupsServer at(const FaultyServer &faulty) { return serverAt(faulty.address()); }
};

/// IPP 2.0, successful-ok, request 1, no attributes.
const QByteArray content("\x02\x00\x00\x00\x00\x00\x00\x01\x03", 9);

} // namespace

TEST_F(EarlyAnswersTest, HalfADocumentIsNotPrintedThoughTheServerIsContentWithIt)
{
    const FaultyServer hasty(cupsd.port(),
                             {.bytesPerSecond = 20'000'000,
                              .answersAfter = 300'000,
                              .earlyAnswer = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n"
                                             "Content-Length: 9\r\n\r\n" +
                                             content});
    const Outcome outcome = print(largeTicket(), at(hasty));
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Rejected);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("did not receive all of")))
        << qPrintable(outcome.error->message);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("large.txt")))
        << qPrintable(outcome.error->message);
    expectNothingWaits();
}

TEST_F(EarlyAnswersTest, ARefusalInTheMiddleOfADocumentIsTold)
{
    const FaultyServer full(
        cupsd.port(), {.bytesPerSecond = 20'000'000,
                       .answersAfter = 300'000,
                       .earlyAnswer = "HTTP/1.1 413 Request Entity Too Large\r\nContent-Length: 0\r\n\r\n"});
    const Outcome outcome = print(largeTicket(), at(full));
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Rejected) << qPrintable(outcome.error->message);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("the disk is full")))
        << qPrintable(outcome.error->message);
    expectNothingWaits();
}

TEST_F(EarlyAnswersTest, APasswordThatWasGivenIsNotBlamedForABrokenConnection)
{
    cupsd.pause(QStringLiteral("tape"));
    const FaultyServer locked(cupsd.port(), {.credentials = "anna:secret"});
    const test_support::FaultProxy proxy(
        locked.port(), test_support::lostAnswer(IPP_OP_SEND_DOCUMENT, test_support::OtherConnections::Close));
    CupsServer guarded = serverAt(proxy.address());
    guarded.askPassword = [](const host::PasswordRequest &request) {
        request.answer(QStringLiteral("anna"), QStringLiteral("secret"));
    };
    const Outcome outcome = print(ticket(), guarded);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::OutcomeUnknown) << qPrintable(outcome.error->message);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("was lost")))
        << qPrintable(outcome.error->message);
}

TEST_F(EarlyAnswersTest, GivingUpAtTheQuestionForAPasswordIsNoRefusal)
{
    const FaultyServer faulty(cupsd.port(), {.credentials = "anna:secret"});
    CupsServer guarded = at(faulty);
    JobSubmission *current = nullptr;
    guarded.askPassword = [&](const host::PasswordRequest &) { current->cancel(); };
    JobSubmission submission(guarded);
    current = &submission;
    const Outcome outcome = wait(submission, ticket());
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Canceled) << qPrintable(outcome.error->message);
    expectNothingWaits();
}
